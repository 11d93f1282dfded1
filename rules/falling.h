#pragma once

#include "base/types.h"

// How pieces in flight move, bounce and come to rest.
namespace glonks {

// The lowest row of a column whose cell isn't occupied; 0, as for an empty column, when all are.
i16 firstFreeRow(i16 column);

// One step of one frame for all of fallingPieces.
void movePieces();

// Makes a Cell of the piece at `index` of fallingPieces, in the lowest free row of `column`. A full
// column ends the game.
void landPiece(i16 index, i16 column);

// Keeps those of fallingPieces that are alive, in their order.
void compactFalling();

}  // namespace glonks
