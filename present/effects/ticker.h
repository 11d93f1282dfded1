#pragma once

#include <cstddef>
#include <string>

#include "present/services/surface.h"

// The announcement that runs across the middle of the screen in large letters.
namespace glonks {

// The picture of a character, upper and lower case alike; none for one without a picture.
Surface glyphFor(char character);

// Characters that a message shows. The letter after them would have an x that leaves its 16 bits.
inline constexpr std::size_t longestMessage = 636;

// Puts a text on the ticker, in place of the one that is running.
void pushMessage(const std::string& text);

}  // namespace glonks
