#pragma once

#include <string>
#include <vector>

#include "base/types.h"
#include "present/services/raster.h"

// Inside the services: pictures as files have them.
namespace glonks {

struct Picture {
  Raster raster;          // 0xAARRGGBB, colours multiplied by alpha
  i32 density = 1;        // pixels to a logical one, each way
  bool hasAlpha = false;  // whether the file says what can be seen through
};

// A file that holds a picture. It can be read again after its pixels were let go, even if the file
// has gone meanwhile.
struct PictureFile {
  std::string path;
  std::vector<unsigned char> bytes;
};

// The file that a picture's path stands for. Raises what fileBytes raises.
PictureFile readPictureFile(const std::string& path);

// The picture in a file. A bitmap has a pixel to a logical one, a PNG two. Raises badFile, naming
// the file, if it is neither or damaged, or larger than 4,096 pixels each way.
Picture decodePicture(const PictureFile& file);

}  // namespace glonks
