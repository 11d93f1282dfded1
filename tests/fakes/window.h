#pragma once

#include <functional>
#include <string>
#include <vector>

#include "base/types.h"
#include "present/services/keyboardstate.h"
#include "present/services/raster.h"
#include "present/services/window.h"

// A window without a screen, linked in the place of the real one.
namespace glonks::fake {

struct Seen {
  KeyState keys = {};  // by scan code
  bool screenIsLost = false;
  i32 picturesShown = 0;
  bool windowOpen = false;
  WindowEvents windowEvents;
  std::vector<i32> windowStates;         // as set, in order
  std::string windowTitle;               // as last set
  i32 cursorShown = 1;                   // the last argument of ShowCursor
  std::function<void()> windowMessages;  // runs at each letWindowMessagesThrough
  double scale = 1;                      // what screenScale returns
  std::function<void(const Raster&)> pictureShown;
};
inline Seen seen;
inline void resetWindow() { seen = {}; }

// The record's fields by their own names, in its order.
[[maybe_unused]] static auto& [keys, screenIsLost, picturesShown, windowOpen, windowEvents,
                               windowStates, windowTitle, cursorShown, windowMessages, scale,
                               pictureShown] = seen;

// The keys that are down, and a key event for them.
void pressKeys(const std::vector<i32>& scanCodes);

}  // namespace glonks::fake
