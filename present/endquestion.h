#pragma once

#include "base/types.h"

namespace glonks {

// The game tick until which Back ends the game; 0: it hasn't been asked. The play loop begins so.
inline i32 endAskedUntil = 0;

// What Back on a gamepad does, which is easily pressed by mistake: asks for a second press, and
// ends the game if that comes within two seconds of game time. Does nothing in a pause.
void askToEnd();

// Draws the line that asks for the second press, as long as it would end the game.
void showEndQuestion();

}  // namespace glonks
