#pragma once

#include <string>
#include <vector>

#include "base/types.h"

// Inside the services: pictures as files have them.
namespace glonks {

struct Picture {
  i32 width = 0;  // pixels
  i32 height = 0;
  i32 density = 1;          // pixels to a logical one, each way
  bool hasAlpha = false;    // whether the file says what can be seen through
  std::vector<u32> colors;  // rows from the top, 0xAARRGGBB, colours multiplied by alpha; or, if
                            // the picture has few colours, those
  std::vector<unsigned char> indices;  // which of few colours each pixel has; a quarter of the room

  // A row, put into `space` if it doesn't stand in the picture as it is.
  const u32* row(i32 y, std::vector<u32>& space) const;
};

// The picture that a path stands for. A bitmap has a pixel to a logical one, a PNG two. Raises what
// fileBytes raises, and badFile, naming the file, if it is neither or damaged, or larger than 4,096
// pixels each way.
Picture readPicture(const std::string& path);

}  // namespace glonks
