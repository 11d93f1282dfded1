#include "tests/fakes/surface.h"

#include <filesystem>
#include <map>

#include "base/errors.h"
#include "base/paths.h"
#include "present/services/directdraw.h"
#include "present/services/screen.h"
#include "tests/fakes/window.h"

namespace glonks {
namespace {

constexpr const char* backBufferName = "back buffer";

// Never destroyed, as surfaces may live longer.
std::map<const DirectDrawSurface7*, std::string>& names =
    *new std::map<const DirectDrawSurface7*, std::string>;

void note(const DirectDrawSurface7* target, const std::string& line) {
  const bool shown = names[target] == backBufferName;
  fake::drawn.push_back(shown ? line : "elsewhere: " + line);
}

std::string sizeOf(const Rect& rect) {
  if (rect == Rect{}) return "whole";
  return std::to_string(rect.right - rect.left) + "x" + std::to_string(rect.bottom - rect.top);
}

std::string placed(const std::string& what, i32 x, i32 y) {
  return what + " at " + std::to_string(x) + "," + std::to_string(y);
}

std::string placed(const Rect& rect) {
  return rect == Rect{} ? sizeOf(rect) : placed(sizeOf(rect), rect.left, rect.top);
}

}  // namespace

std::string fake::nameOf(const Surface& picture) { return picture ? names[picture.get()] : ""; }

DirectDrawSurface7::DirectDrawSurface7(i32 width, i32 height, double /*scale*/)
    : width_(width), height_(height) {}
DirectDrawSurface7::~DirectDrawSurface7() { names.erase(this); }

void DirectDrawSurface7::SetColorKey(i32 flags, const ColorKey& key) {
  constexpr i32 white = RGB(255, 255, 255);
  hasKey_ = flags == sourceBlitKey && key.low == white && key.high == white;
}

i32 DirectDrawSurface7::Blt(const Rect& to, const Surface& source, const Rect& from, i32 flags) {
  if (!source) return 1;
  const std::string name = fake::nameOf(source);
  fake::onPicture(name);
  const bool stretched = from.left != 0 || from.top != 0 || sizeOf(from) != sizeOf(to);
  const std::string part = from.left == 0 && from.top == 0 ? sizeOf(from) : placed(from);
  const bool keyed = flags == bltKeyed && source->hasKey_;
  note(this, name + " " + (stretched ? part + " to " : "") + placed(to) +
                 (flags == bltOpaque ? " opaque"
                  : keyed            ? ""
                                     : " wrongly keyed"));
  return 0;
}

i32 DirectDrawSurface7::BltColorFill(const Rect& to, i32 color) {
  note(this, "fill " + std::to_string(color) + " " + placed(to));
  return 0;
}

void DirectDrawSurface7::SetFont(const GameFont& font) {
  note(this, font.name + " " + std::to_string(font.size));
}
void DirectDrawSurface7::SetForeColor(i32 color) { note(this, "color " + std::to_string(color)); }
void DirectDrawSurface7::SetFontTransparency(Flag transparent) {
  note(this, transparent == True ? "no box" : "box");
}

void DirectDrawSurface7::DrawText(i32 x, i32 y, const std::string& text, Flag /*atCursor*/) {
  note(this, placed(text, x, y));
}

Surface DirectDrawSurface7::GetAttachedSurface(i32 caps) {
  return caps == 4 ? backBuffer_ : nullptr;
}
void DirectDrawSurface7::ComposeAhead() {}
void DirectDrawSurface7::attachBackBuffer(Surface backBuffer) { backBuffer_ = backBuffer; }
void DirectDrawSurface7::Flip(const Surface& overrideSurface, i32 flags) {
  fake::onPicture("flip");
  ++fake::picturesShown;
  note(backBuffer_.get(), overrideSurface || flags != flipWait ? "flip?" : "flip");
}

DirectDraw7::~DirectDraw7() = default;
void DirectDraw7::SetCooperativeLevel(i32 hWnd, i32 flags) { hWnd_ = hWnd, flags_ = flags; }
void DirectDraw7::SetDisplayMode(i32 width, i32 height, i32, i32, i32) {
  width_ = width, height_ = height;
  if (flags_ == 0x51) openScreen(hWnd_, width, height);
}
Surface DirectDraw7::CreateSurface(const SurfaceDesc& /*desc*/) {
  auto surface = std::make_shared<DirectDrawSurface7>(width_, height_);
  auto attached = std::make_shared<DirectDrawSurface7>(width_, height_);
  names[attached.get()] = backBufferName;
  surface->attachBackBuffer(attached);
  return surface;
}

Surface DirectDraw7::CreateSurfaceFromFile(const std::string& path, SurfaceDesc& /*desc*/) {
  const std::string name = nativePath(path).stem().string();
  fake::onPicture(name);
  fake::drawn.push_back("load " + name);
  if (!std::filesystem::exists(nativePath(pictureFileOf(path))))
    throw RuntimeError(ErrorNumber::fileNotFound, "no file " + path);
  auto surface = std::make_shared<DirectDrawSurface7>(0, 0);
  names[surface.get()] = name;
  return surface;
}

i32 DirectDraw7::TestCooperativeLevel() const { return screenLost() ? 1 : 0; }
void DirectDraw7::RestoreAllSurfaces() { fake::drawn.emplace_back("surfaces restored"); }
void DirectDraw7::RestoreDisplayMode() { closeScreen(); }

}  // namespace glonks
