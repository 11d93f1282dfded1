#pragma once

#include <functional>
#include <string>
#include <vector>

#include "base/types.h"

// A toolkit without a screen, linked in the place of the real one.
namespace glonks::fake {

struct Shown {
  std::vector<std::string> boxes;  // texts of all dialogs, in order
  Flag yes = False;                // what yesNoBox returns
  std::function<void()> asked;     // runs at each dialog
  std::string typed;               // what inputBox returns
  // Runs at each letFormMessagesThrough, where events would be handled.
  std::function<void()> messages;
};
inline Shown shown;
inline void resetToolkit() { shown = {}; }

// The record's fields by their own names, in its order.
[[maybe_unused]] static auto& [boxes, yes, asked, typed, messages] = shown;

}  // namespace glonks::fake
