#pragma once

#include <string>

#include "base/types.h"

// Form fConsole: the window that owns the screen during a game and takes its key events.
namespace glonks {

struct ConsoleForm {
  std::string caption = "Click to resume play";
  i32 hWnd = 0;  // 0 while the form isn't loaded
};
inline ConsoleForm fConsole;

// Loads and shows the form. `keyDown` runs at each key event that it gets, `closeAsked` when its
// close box is clicked and it can't be closed, `padGone` when the gamepad in use is unplugged.
void fConsole_Show(void (*keyDown)(), void (*closeAsked)(), void (*padGone)() = nullptr);

// Sets `cancel` to 1 while a game runs or is paused: the form can't be closed then.
void fConsole_Form_Unload(i16& cancel);

// Closes the form, unless its Form_Unload cancels that.
void fConsole_Unload();

}  // namespace glonks
