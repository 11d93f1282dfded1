#pragma once

#include "base/types.h"

namespace glonks {

// Rotates the row `selectedRow` sideways by one column, to the left or to the right; the piece that
// leaves at one edge comes in at the other. What has lost its support then drops.
void shiftRow(Flag toLeft);

// Lifts every piece above a free cell back into fallingPieces, lowest row first, so that it drops
// and stops at its first contact.
void settlePieces();

}  // namespace glonks
