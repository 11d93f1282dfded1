#pragma once

#include <string>
#include <vector>

#include "base/types.h"

// Inside the services: fonts of the system, and texts as pictures.
namespace glonks {

// One line of text: how much of each pixel the letters cover, 0 to 255, rows from the top.
struct TextPicture {
  i32 width = 0;
  i32 height = 0;
  std::vector<unsigned char> coverage;
};

// Makes a font ready. For a name that the system doesn't know, it offers another font instead.
// 72 points are 96 logical pixels, each of them `scale` pixels. Raises serviceFailed, naming the
// font, if there is none at all.
void loadFont(const std::string& name, i32 points, double scale);

// The picture of a Windows-1252 text in a font. It stays valid until the next call. Raises what
// loadFont raises.
const TextPicture& textPicture(const std::string& fontName, i32 points, double scale,
                               const std::string& text);

}  // namespace glonks
