#include "present/services/directdraw.h"

#include "base/errors.h"
#include "present/services/screen.h"
#include "present/services/window.h"

namespace glonks {
namespace {

constexpr i32 exclusive = 0x10;
constexpr i32 primary = 0x200;

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
  auto surface = std::make_shared<DirectDrawSurface7>(0, 0);  // its pixels are the screen's
  surface->attachBackBuffer(std::make_shared<DirectDrawSurface7>(width_, height_, screenScale()));
  return surface;
}

Surface DirectDraw7::CreateSurfaceFromFile(const std::string& path, SurfaceDesc& desc) {
  auto surface =
      std::make_shared<DirectDrawSurface7>(std::make_shared<PictureSource>(readPicture(path)));
  desc.width = surface->width();
  desc.height = surface->height();
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
