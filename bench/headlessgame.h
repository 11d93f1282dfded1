#pragma once

#include <functional>
#include <string>

#include "game/model/mode.h"

// Whole games without a screen, as fast as they go, for programs that play them.
namespace glonks {

// DirectInput scan codes, for fake::pressKeys.
enum ScanCode : i32 { keyUp = 200, keyLeft = 203, keyRight = 205, keyDown = 208 };

// What a playing program has in mind: to turn a row.
struct Plan {
  i32 row = 0;
  i32 steps = 0;  // to the right; below 0 to the left
  double worth = 0;
};

// Presses the key that the plan asks for next, and takes a step off once it is a turn; none when
// the plan has been carried out.
void pressNextKey(Plan& plan);

// Makes the program ready, from a game's folder.
void setUpHeadless(const std::string& gameFolder);

// Plays one game from a seed, in the level of this number (0 for a mode without levels), or at this
// place in its list. `player` runs in each pass of 26 ms. A game that goes on for half an hour is
// broken off. Returns its length in ms of game time.
i32 playHeadless(const Mode& mode, i32 level, i16 item, i32 seed,
                 const std::function<void()>& player);

// The game just played was broken off.
bool wasBrokenOff();

}  // namespace glonks
