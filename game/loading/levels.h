#pragma once

#include <string>

#include "base/types.h"

namespace glonks {

// Reads a level file into the level fields and the spawn ranges of pieceCatalog; needs loadPieces.
// For Arcade all of it, and the level's title goes to the ticker; otherwise `spawnInterval` and the
// ranges alone. Raises fileNotFound, fileAccess, inputPastEnd, typeMismatch, overflow or badFile,
// naming file and field.
void loadLevel(const std::string& path, Flag isArcade);

}  // namespace glonks
