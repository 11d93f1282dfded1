#pragma once

#include <functional>

#include "shell/toolkit/controls.h"

// Where Qt calls into the program. Nothing may be raised through Qt: what a handler raises is kept
// here, the event loop in use ends, and whoever ran that loop raises it again.
namespace glonks {

// Runs `action` and then what setAfterHandler has set. While something raised is kept, does
// nothing.
void enterFromQt(const std::function<void()>& action);
void setAfterHandler(Handler handler);

// Raises what is kept, if anything is.
void raiseKept();
bool isAnythingKept();

// An event loop of Qt, in use as long as the object lives; `stop` makes it return. Loops nest.
class LoopInUse {
 public:
  explicit LoopInUse(std::function<void()> stop);
  ~LoopInUse();
  LoopInUse(const LoopInUse&) = delete;
  LoopInUse& operator=(const LoopInUse&) = delete;
};

// Makes the outermost loop return as soon as no handler runs any more. takeEndRequest returns
// whether that was requested, and forgets the request.
void requestEnd();
bool takeEndRequest();

}  // namespace glonks
