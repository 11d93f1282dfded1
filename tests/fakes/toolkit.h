#pragma once

#include <functional>
#include <string>
#include <vector>

#include "base/types.h"

// A toolkit without a screen, linked in the place of the real one.
namespace glonks::fake {

inline std::vector<std::string> boxes;   // texts of all dialogs, in order
inline Flag yes = False;                 // what yesNoBox gives
inline std::function<void()> asked;      // runs when yesNoBox asks
inline std::string typed;                // what inputBox gives
inline std::vector<std::string> forms;   // "show Glonks", "hide Glonks" ...
inline std::vector<std::string> opened;  // addresses and programs, in order

// Runs at each letFormMessagesThrough, where events would be handled; counts the calls.
inline std::function<void()> messages;
inline i32 messagePasses = 0;

void resetToolkit();

}  // namespace glonks::fake
