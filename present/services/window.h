#pragma once

#include <string>

#include "base/types.h"

// The window that a game is played in, and its messages. There is at most one at a time.
namespace glonks {

// What a window calls while its messages are let through: keyDown at each key press and at each
// repeat of a held key, of a gamepad's buttons too, closeAsked when the player wants the window
// closed, padGone when the gamepad that was used last is unplugged.
struct WindowEvents {
  void (*keyDown)() = nullptr;
  void (*closeAsked)() = nullptr;
  void (*padGone)() = nullptr;
};

enum class WindowState : i16 { normal = 0, maximised = 2 };

// Opens the window over the whole desktop and returns its handle. Raises serviceFailed.
i32 openWindow(const std::string& caption, const WindowEvents& events);
void closeWindow(i32 handle);

// Does nothing unless the window covers the whole screen: one that the player has sized stays as it
// is.
void setWindowState(i32 handle, WindowState state);

void setWindowTitle(i32 handle, const std::string& title);

// Handles what is waiting for the window: keys, gamepads, loss and return of the focus, Alt+Enter
// (which switches between the whole screen and a resizable window). If the window has been
// uncovered or resized, shows the last picture again. If nothing is waiting, waits for the first
// message, but at most to the tick `until` of GetTickCount, and handles it at once. Does nothing
// while no window is open. Raises serviceFailed.
void letWindowMessagesThrough(u32 until);

// True while the window lacks the keyboard's focus or is minimised.
bool screenLost();

// Shows the mouse pointer over the window (1) or hides it (0).
void ShowCursor(i32 show);

}  // namespace glonks
