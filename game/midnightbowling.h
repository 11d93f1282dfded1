#pragma once

#include "game/model/mode.h"

// Midnight Bowling: ten frames of ten-pin bowling. A ball comes down in a column drawn, and the
// player slides the Pins to where it will take the most.
namespace glonks {

// Sets up the first Pins. Needs loadPieces. Raises fileNotFound, fileAccess or badFile if the
// picture of the Pins can't be loaded.
void setUpBowling();

// Plays the game from its first ball to its last. Needs initVariables, loadPieces and setUpBowling.
void playBowling();

// The points and the prize, also of a game that was ended before its last ball.
Outcome bowlingOutcome();

}  // namespace glonks
