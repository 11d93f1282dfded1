#pragma once

#include <string>

#include "base/types.h"

namespace glonks {

// The lowest slot of pieceCatalog whose piece has this name. Raises badFile if there is none.
i16 slotNamed(const std::string& name);

}  // namespace glonks
