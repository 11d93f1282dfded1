#pragma once

namespace glonks {

// What Back on a gamepad does, which is easily pressed by mistake: asks for a second press, and
// ends the game if that comes within two seconds of game time. Does nothing in a pause.
void askToEnd();

// Draws the line that asks for the second press, as long as it would end the game.
void showEndQuestion();

}  // namespace glonks
