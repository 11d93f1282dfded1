#pragma once

#include "base/types.h"

namespace glonks {

// A Bowling Ball takes the piece in a cell off the field, with its sound and a silent impact.
void bowlOver(i16 row, i16 column);

// Takes the piece in the top row of the column, if there is one: a ball that falls into a full
// column would remove nothing.
void openFullColumn(i16 column);

}  // namespace glonks
