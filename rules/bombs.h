#pragma once

#include "base/types.h"

namespace glonks {

// The Bomb in a cell goes off and takes its bombable neighbours with it.
void explodeBomb(i16 row, i16 column);

}  // namespace glonks
