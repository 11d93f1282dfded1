#pragma once

#include <array>

#include "base/types.h"

// Inside the services: which keys are down, according to the window's events and the gamepads.
namespace glonks {

// One byte per DirectInput scan code, not 0 while the key is down. Scan codes name physical keys,
// whatever the keyboard's layout.
using KeyState = std::array<unsigned char, 256>;

// In the place of a key: the button of a gamepad that asks to end the game.
inline constexpr unsigned char padBackCode = 0xE0;

// The keys as they are at the event that is being handled, 0x80 for those that are down. A tap is
// among them once.
KeyState takeKeys();

// A key goes down or comes up; `key` is SDL's scan code. A key that is muted stays up, and
// pressing it returns false.
bool pressKey(i32 key);
void releaseKey(i32 key);

// A gamepad holds a key down or lets it go; `scanCode` is the one in the table. What the keyboard
// holds isn't touched.
void holdPadKey(unsigned char scanCode, bool isDown);
// A key that is down for takeKeys once.
void tapKey(unsigned char scanCode);

// All keys come up, the gamepads' too.
void releaseAllKeys();

// The keys that are held now are muted until they are let go. No other key is.
void muteHeldKeys();

// All keys are up and none is muted.
void forgetKeys();

}  // namespace glonks
