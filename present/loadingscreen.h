#pragma once

#include <string>

#include "present/services/surface.h"

// The picture that stands while a game is being loaded.
namespace glonks {

// Loads the loading picture. Raises fileNotFound, fileAccess or badFile.
Surface loadLoadingPicture();

// Shows the picture over the whole screen with a line of text at its top left.
void showLoadingLine(const Surface& picture, const std::string& line);

}  // namespace glonks
