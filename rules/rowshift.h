#pragma once

#include "base/types.h"

namespace glonks {

// Rotates the row `selectedRow` sideways by one column, to the left or to the right; the piece that
// leaves at one edge comes in at the other. What has lost its support then drops.
void shiftRow(Flag toLeft);

}  // namespace glonks
