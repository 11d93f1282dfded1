#pragma once

#include "game/model/model.h"

// The Pins and the ball of Midnight Bowling on the board.
namespace glonks {

// Stands ten Pins on an empty board, in rows of 4, 3, 2 and 1. Drawn are the column of the bottom
// row's left end, and for each row above whether it stands at the left or at the right of the one
// below. Raises badFile if the catalogue has no Pin.
void setPins();

// Pins that haven't been taken: at rest, or dropping after they lost their support.
i16 pinsStanding();

// Clears away all Pins at rest, with an explosion each; nothing is paid.
void sweepPins();

// The Bowling Ball that is on its way; nullptr if there is none. The next change of fallingPieces
// may move it.
Piece* ballInFlight();

}  // namespace glonks
