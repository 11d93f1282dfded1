#pragma once

#include <string>

namespace glonks {

// The file, by its path in UTF-8, of the font that the system has for a name, or of what it has in
// its place. Raises serviceFailed if there is no font at all.
std::string fontFile(const std::string& name);

// How the error of any font begins.
inline std::string unusableFont(const std::string& name) {
  return "The font \"" + name + "\" can't be used";
}

}  // namespace glonks
