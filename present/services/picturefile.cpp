#include "present/services/picturefile.h"

#include <SDL.h>
#include <png.h>

#include <algorithm>
#include <array>
#include <iterator>

#include "base/paths.h"
#include "present/services/failure.h"
#include "present/services/filebytes.h"
#include "present/services/pixels.h"
#include "present/services/raster.h"
#include "present/services/sdlsurface.h"

namespace glonks {
namespace {

constexpr i32 largestPicture = 4096;  // pixels of width or height
constexpr i32 densityOfPng = 2;
constexpr std::array<unsigned char, 4> pngBegin = {0x89, 'P', 'N', 'G'};
constexpr bool littleEnd = SDL_BYTEORDER == SDL_LIL_ENDIAN;

struct PictureFile {
  std::string path;
  std::vector<unsigned char> bytes;
};

[[noreturn]] void refuse(const PictureFile& file, const std::string& reason) {
  fail(ErrorNumber::badFile, "The picture \"" + file.path + "\" can't be used", reason);
}

// Before memory is taken for a picture of a size that none of the game has.
void checkSize(const PictureFile& file, i64 width, i64 height) {
  if (width < 1 || width > largestPicture || height < 1 || height > largestPicture) {
    refuse(file, "its size is out of range");
  }
}

bool isPng(const PictureFile& file) {
  return file.bytes.size() >= pngBegin.size() &&
         std::equal(pngBegin.begin(), pngBegin.end(), file.bytes.begin());
}

Picture decodePng(const PictureFile& file) {
  png_image png = {};
  png.version = PNG_IMAGE_VERSION;
  if (png_image_begin_read_from_memory(&png, file.bytes.data(), file.bytes.size()) == 0) {
    refuse(file, png.message);
  }
  Picture picture{static_cast<i32>(png.width),
                  static_cast<i32>(png.height),
                  densityOfPng,
                  (png.format & PNG_FORMAT_FLAG_ALPHA) != 0,
                  {},
                  {}};
  const bool fewColors = (png.format & PNG_FORMAT_FLAG_COLORMAP) != 0;
  png.format =
      (littleEnd ? PNG_FORMAT_BGRA : PNG_FORMAT_ARGB) | (fewColors ? PNG_FORMAT_FLAG_COLORMAP : 0);
  try {
    checkSize(file, picture.width, picture.height);
    const std::size_t size = Raster::size(picture.width, picture.height);
    picture.colors.resize(fewColors ? png.colormap_entries : size);
    picture.indices.resize(fewColors ? size : 0);
  } catch (...) {
    png_image_free(&png);
    throw;
  }
  void* pixels = fewColors ? static_cast<void*>(picture.indices.data()) : picture.colors.data();
  if (png_image_finish_read(&png, nullptr, pixels, 0, picture.colors.data()) == 0) {
    refuse(file, png.message);
  }
  if (picture.hasAlpha) {
    for (u32& color : picture.colors) color = faded(color | opaqueBits, color >> alphaShift);
  }
  return picture;
}

i32 littleEndian(const std::vector<unsigned char>& bytes, std::size_t at, std::size_t length) {
  u32 value = 0;
  for (std::size_t i = length; i-- > 0;) value = value << 8U | bytes[at + i];
  return static_cast<i32>(value);
}

void checkBitmapHeader(const PictureFile& file) {
  constexpr std::size_t header = 26;  // up to width and height, which follow the header's own size
  const std::vector<unsigned char>& bytes = file.bytes;
  if (bytes.size() < header || bytes[0] != 'B' || bytes[1] != 'M') {
    refuse(file, "it is no bitmap");
  }
  const bool oldest = littleEndian(bytes, 14, 4) == 12;  // the form with sizes of 16 bits
  const std::size_t length = oldest ? 2 : 4;
  const i64 height = littleEndian(bytes, 18 + length, length);  // negative: rows from the top
  checkSize(file, littleEndian(bytes, 18, length), std::max(height, -height));
}

Picture decodeBitmap(const PictureFile& file) {
  checkBitmapHeader(file);
  const auto length = static_cast<int>(file.bytes.size());
  SdlSurface bitmap(SDL_LoadBMP_RW(SDL_RWFromConstMem(file.bytes.data(), length), 1));
  if (bitmap) bitmap.reset(SDL_ConvertSurfaceFormat(bitmap.get(), SDL_PIXELFORMAT_RGB888, 0));
  if (!bitmap) refuse(file, SDL_GetError());

  Picture picture{bitmap->w, bitmap->h, 1, false, {}, {}};
  for (i32 y = 0; y < bitmap->h; ++y) {
    const auto* row = reinterpret_cast<const Uint32*>(static_cast<const Uint8*>(bitmap->pixels) +
                                                      static_cast<std::size_t>(y) * bitmap->pitch);
    std::transform(row, row + bitmap->w, std::back_inserter(picture.colors),
                   [](Uint32 pixel) { return pixel | opaqueBits; });
  }
  return picture;
}

}  // namespace

const u32* Picture::row(i32 y, std::vector<u32>& space) const {
  if (indices.empty()) return &colors[Raster::size(width, y)];
  const unsigned char* from = &indices[Raster::size(width, y)];
  space.resize(static_cast<std::size_t>(width));
  std::transform(from, from + width, space.begin(),
                 [this](unsigned char index) { return colors[index]; });
  return space.data();
}

Picture readPicture(const std::string& path) {
  PictureFile file;
  file.path = pictureFileOf(path);
  file.bytes = fileBytes(file.path);
  return isPng(file) ? decodePng(file) : decodeBitmap(file);
}

}  // namespace glonks
