#include "present/services/directdraw.h"

#include <SDL.h>

#include <vector>

#include "present/services/failure.h"
#include "present/services/filebytes.h"
#include "present/services/screen.h"
#include "present/services/sdlsurface.h"
#include "present/services/window.h"

namespace glonks {
namespace {

constexpr i32 exclusive = 0x10;
constexpr i32 primary = 0x200;
constexpr i32 largestPicture = 4096;  // pixels of width or height

std::string unusable(const std::string& path) {
  return "The picture \"" + path + "\" can't be used";
}

i32 littleEndian(const std::vector<unsigned char>& bytes, std::size_t at, std::size_t length) {
  u32 value = 0;
  for (std::size_t i = length; i-- > 0;) value = value << 8U | bytes[at + i];
  return static_cast<i32>(value);
}

// Rejects what claims to be a picture of a size that no picture of the game has, before memory
// is taken for it.
void checkHeader(const std::string& path, const std::vector<unsigned char>& bytes) {
  constexpr std::size_t header = 26;  // up to width and height, which follow the header's own size
  if (bytes.size() < header || bytes[0] != 'B' || bytes[1] != 'M') {
    fail(ErrorNumber::badFile, unusable(path), "it is no bitmap");
  }
  const bool oldest = littleEndian(bytes, 14, 4) == 12;  // the form with sizes of 16 bits
  const std::size_t length = oldest ? 2 : 4;
  const i32 width = littleEndian(bytes, 18, length);
  const i32 height = littleEndian(bytes, 18 + length, length);
  if (width < 1 || width > largestPicture || height == 0 || height < -largestPicture ||
      height > largestPicture) {
    fail(ErrorNumber::badFile, unusable(path), "its size is out of range");
  }
}

}  // namespace

DirectDraw7::~DirectDraw7() { RestoreDisplayMode(); }

void DirectDraw7::SetCooperativeLevel(i32 hWnd, i32 flags) {
  hWnd_ = hWnd;
  flags_ = flags;
}

void DirectDraw7::SetDisplayMode(i32 width, i32 height, i32 /*bits*/, i32 /*rate*/, i32 /*flags*/) {
  if ((flags_ & exclusive) == 0) {
    throw RuntimeError(ErrorNumber::serviceFailed, "SetDisplayMode: the screen isn't the game's.");
  }
  openScreen(hWnd_, width, height);
  width_ = width;
  height_ = height;
}

Surface DirectDraw7::CreateSurface(const SurfaceDesc& desc) {
  if ((desc.caps & primary) == 0 || desc.backBufferCount != 1 || width_ == 0) {
    throw RuntimeError(ErrorNumber::serviceFailed, "CreateSurface: no such surface can be made.");
  }
  auto surface = std::make_shared<DirectDrawSurface7>(width_, height_);
  surface->attachBackBuffer(std::make_shared<DirectDrawSurface7>(width_, height_));
  return surface;
}

Surface DirectDraw7::CreateSurfaceFromFile(const std::string& path, SurfaceDesc& desc) {
  const std::vector<unsigned char> bytes = fileBytes(path);
  checkHeader(path, bytes);
  SdlSurface picture(
      SDL_LoadBMP_RW(SDL_RWFromConstMem(bytes.data(), static_cast<int>(bytes.size())), 1));
  if (picture) picture.reset(SDL_ConvertSurfaceFormat(picture.get(), SDL_PIXELFORMAT_RGB888, 0));
  if (!picture) fail(ErrorNumber::badFile, unusable(path));

  const i32 width = picture->w;
  const i32 height = picture->h;
  std::vector<u32> pixels;
  pixels.reserve(static_cast<std::size_t>(width) * height);
  for (i32 y = 0; y < height; ++y) {
    const auto* row = reinterpret_cast<const Uint32*>(static_cast<const Uint8*>(picture->pixels) +
                                                      static_cast<std::size_t>(y) * picture->pitch);
    for (i32 x = 0; x < width; ++x) pixels.push_back(row[x] & 0xFFFFFFU);
  }
  auto surface = std::make_shared<DirectDrawSurface7>(width, height);
  surface->setPixels(std::move(pixels));
  desc.width = width;
  desc.height = height;
  return surface;
}

i32 DirectDraw7::TestCooperativeLevel() const { return screenLost() ? 1 : 0; }

void DirectDraw7::RestoreAllSurfaces() {}

void DirectDraw7::RestoreDisplayMode() {
  if (width_ != 0) closeScreen();
  width_ = 0;
  height_ = 0;
}

}  // namespace glonks
