#pragma once

#include <string>

#include "present/services/surface.h"

namespace glonks {

// The picture "\images\", the name and ".bmp", with the game's colour key set; `desc` receives its
// size. Needs initDX. Raises fileNotFound, fileAccess or badFile, naming the file.
Surface loadKeyedPicture(const std::string& name, SurfaceDesc& desc);

}  // namespace glonks
