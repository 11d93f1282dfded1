#pragma once

#include <string>

#include "present/services/surface.h"

// The announcement that runs across the middle of the screen in large letters.
namespace glonks {

// The picture of a character, upper and lower case alike; none for one without a picture.
Surface glyphFor(char character);

// Puts a text on the ticker, in place of the one that is running.
void pushMessage(const std::string& text);

}  // namespace glonks
