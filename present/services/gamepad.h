#pragma once

#include <optional>

#include "base/types.h"

// The gamepads, all taken together: a button is down while it is down on any of them. They work
// without a window too.
namespace glonks {

// The four directions are those of the cross and of the left stick, whose stronger axis counts.
// Both shoulders are one button.
enum class PadButton : unsigned char { up, down, left, right, a, b, x, y, start, back, shoulder };

// What has happened. Directions and a, b, x and y repeat themselves while they are held, as keys
// do: only the last button that went down, after 500 ms and then every 33 ms. `gone`: the pad that
// the player has used last was unplugged.
struct PadChange {
  enum class Kind : unsigned char { pressed, repeated, released, gone };
  Kind kind = Kind::pressed;
  PadButton button = PadButton::up;
};

// Whether a pad that is still there is what the player has used last. Others clear it when
// something else is used.
inline bool padInUse = false;

// Takes in what the pads have done, and opens and closes those that came and went. The first call
// makes the pads ready, with the mappings of SDL, those of the file that the variable
// SDL_GAMECONTROLLERCONFIG_FILE names, and those of the files "gamecontrollerdb.txt" in the game's
// folder and the player's. Without SDL's support there are no pads.
void readGamepads();

// The next change that was taken in, in order of time; each is given once.
std::optional<PadChange> nextPadChange();

// Forgets changes that nobody has asked for yet. What is held now causes nothing more until it is
// let go and pressed again.
void forgetPadInput();

bool hasGamepad();

// The tick at which the pads have to be read again, at most `until`; without pads, `until`.
u32 nextPadLook(u32 until);

}  // namespace glonks
