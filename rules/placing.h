#pragma once

#include <string>

#include "base/types.h"

namespace glonks {

// Puts the catalogue's piece of this name into a free cell, at rest as if it had just landed there,
// without a sound. Raises badFile if the catalogue has no such piece.
void placeAtRest(const std::string& name, i16 row, i16 column);

}  // namespace glonks
