#pragma once

#include "base/types.h"

// The menu played by gamepad: the cross or the stick moves, A presses, B goes back, Start opens the
// menu bar.
namespace glonks {

// From now on, gamepads steer the windows and dialogs that are active.
void startPadMenu();

// What happens again and again then: does what the pads' buttons ask for, and returns how many ms
// to wait until the next time. What was done before `first` counts for nothing. In a game, which
// reads the pads itself, does nothing.
i32 servePads(Flag first);

}  // namespace glonks
