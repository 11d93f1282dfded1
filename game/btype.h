#pragma once

#include "game/model/mode.h"

// B-Type: the field begins with pieces in play, and the game is won when all of them have gone.
namespace glonks {

// Lays the pieces of the grade selected (gameItem: 0 Mild, 1 Medium, 2 Spicy) with draws of the
// game's generator, and counts them in bTypeLeft. Needs loadPieces. Raises fileNotFound, fileAccess
// or badFile if their picture can't be loaded.
void setUpBType();

// Plays the game from its first frame to its last. Needs what play needs, and setUpBType.
void playBType();

// The prize, for a game that was won.
Outcome bTypeOutcome();

}  // namespace glonks
