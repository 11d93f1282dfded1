#pragma once

#include "base/types.h"

namespace glonks {

// Destroys the piece in a cell, with all that follows from losing it: points, credits, notes, level
// goals, what its kind does. An empty cell is left alone.
void removePiece(i16 row, i16 column);

}  // namespace glonks
