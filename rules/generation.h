#pragma once

#include <string>

#include "game/model/model.h"

// How pieces come into play.
namespace glonks {

// Adds one piece to fallingPieces: its kind drawn by the level's ranges, its column drawn, its
// timer armed. A Bowling Ball drawn for a column that is full to the top takes the top piece at
// once.
void spawnPiece();

// Adds a piece of this name, the lowest catalogue slot's, in a column drawn, whatever the level's
// ranges are. Its timer isn't armed. Raises badFile if the catalogue has no such piece. The
// reference stands until the next piece is added.
Piece& dropNamed(const std::string& name);

}  // namespace glonks
