#pragma once

#include <string>

#include "base/types.h"

// The window that a game is played in, and its messages. There is at most one at a time.
namespace glonks {

// What a window calls while its messages are let through: keyDown at each key press and each repeat
// of a held key, closeAsked when the player wants the window closed.
struct WindowEvents {
  void (*keyDown)() = nullptr;
  void (*closeAsked)() = nullptr;
};

enum class WindowState : i16 { normal = 0, maximised = 2 };

// Opens the window over the whole desktop and gives its handle. Raises serviceFailed.
i32 openWindow(const std::string& caption, const WindowEvents& events);
void closeWindow(i32 handle);
void setWindowState(i32 handle, WindowState state);
void setWindowTitle(i32 handle, const std::string& title);

// Handles what is waiting for the window: keys, loss and return of the focus, Alt+Enter (which
// switches between the whole screen and a resizable window). If nothing is waiting, sleeps to the
// next millisecond. Does nothing while no window is open.
void letWindowMessagesThrough();

// Shows the mouse pointer over the window (1) or hides it (0).
void ShowCursor(i32 show);

}  // namespace glonks
