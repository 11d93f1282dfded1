#pragma once

#include <vector>

#include "base/types.h"

namespace glonks {

struct SlammerPlace {
  i16 column = 0;
  i16 row = 0;
};

// Eliminates what lies between two Slammers of one line, if it is nothing but identical pieces, and
// the Slammers with it. `slammers`: those that the scan has seen, in its order; `upper`: the list's
// upper bound.
void checkSlams(const std::vector<SlammerPlace>& slammers, i16 upper);

}  // namespace glonks
