#pragma once

#include <string>

#include "game/types.h"

namespace glonks {

// The lowest slot of pieceCatalog whose piece has this name. Raises badFile if there is none.
i16 slotNamed(const std::string& name);

}  // namespace glonks
