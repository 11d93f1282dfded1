#include "present/services/screen.h"

#include <SDL.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "base/clock.h"
#include "present/services/failure.h"
#include "present/services/picturescaler.h"
#include "present/services/rect.h"
#include "present/services/sdlwindow.h"

namespace glonks {
namespace {

constexpr u32 refreshPeriod = 16;  // ms

constexpr u32 settlingTime = 200;  // ms that a window's size stands before the scale follows it
constexpr double largestScale = 2;
constexpr double largestScaleInSoftware = 1.5;

SDL_Window* window = nullptr;
i32 logicalWidth = 0;
i32 logicalHeight = 0;
double scale = 1;
double scaleWanted = 1;  // by the window's present size
u32 wantedSince = 0;     // tick
i32 pictureWidth = 0;    // of the picture that stands on the screen, pixels
i32 pictureHeight = 0;
std::vector<u32> shownPixels;  // the picture that stands on the screen
u32 lastShown = 0;             // tick of the last picture

// With a graphics processor: one texture, which it scales.

SDL_Renderer* renderer = nullptr;
SDL_Texture* texture = nullptr;

void createTexture() {
  SDL_RenderSetLogicalSize(renderer, pictureWidth, pictureHeight);
  if (texture != nullptr) SDL_DestroyTexture(texture);
  texture = SDL_CreateTexture(renderer, SDL_PIXELFORMAT_RGB888, SDL_TEXTUREACCESS_STREAMING,
                              pictureWidth, pictureHeight);
  if (texture == nullptr) {
    fail(ErrorNumber::serviceFailed, "The screen can't take the game's picture");
  }
  SDL_SetTextureScaleMode(texture, SDL_ScaleModeLinear);
}

void openRenderer() {
  renderer = SDL_CreateRenderer(window, -1, 0);
  if (renderer == nullptr) fail(ErrorNumber::serviceFailed, "The screen can't be drawn on");
}

bool upload(const u32* pixels) {
  return SDL_UpdateTexture(texture, nullptr, pixels, pictureWidth * 4) == 0;
}

void showTexture(const u32* pixels) {
  std::copy_n(pixels, shownPixels.size(), shownPixels.begin());
  if (texture == nullptr || !upload(pixels)) {
    createTexture();  // a display that was reset takes its textures with it
    if (!upload(pixels)) {
      fail(ErrorNumber::serviceFailed, "The screen can't take the game's picture");
    }
  }
  SDL_RenderClear(renderer);
  SDL_RenderCopy(renderer, texture, nullptr, nullptr);
  SDL_RenderPresent(renderer);
}

// Without one: the window's own surface, of which only tiles that have changed are scaled and sent.

constexpr i32 tileWidth = 64;
constexpr i32 tileHeight = 32;

SDL_Surface* target = nullptr;  // SDL's own, new whenever the window's size has changed
i32 targetWidth = 0;
i32 targetHeight = 0;
std::unique_ptr<PictureScaler> scaler;  // to `area`
Rect area;                              // where the picture stands in the window
bool paintWhole = true;

// The largest rectangle of the picture's shape in the middle of the window.
void fitPicture() {
  const double fitting = std::min(static_cast<double>(target->w) / pictureWidth,
                                  static_cast<double>(target->h) / pictureHeight);
  const i32 width = std::max(1, static_cast<i32>(pictureWidth * fitting));
  const i32 height = std::max(1, static_cast<i32>(pictureHeight * fitting));
  area.left = (target->w - width) / 2;
  area.top = (target->h - height) / 2;
  area.right = area.left + width;
  area.bottom = area.top + height;
  scaler = std::make_unique<PictureScaler>(pictureWidth, pictureHeight, width, height);
  SDL_FillRect(target, nullptr, 0);
}

// Whether a tile differs from what stands on the screen; what differs is noted as standing there.
bool updateTile(const u32* pixels, const Rect& tile) {
  const auto bytes = static_cast<std::size_t>(tile.right - tile.left) * sizeof(u32);
  bool differs = paintWhole;
  for (i32 y = tile.top; y < tile.bottom; ++y) {
    const std::ptrdiff_t at = static_cast<std::ptrdiff_t>(y) * pictureWidth + tile.left;
    u32* standing = shownPixels.data() + at;
    differs = differs || std::memcmp(standing, pixels + at, bytes) != 0;
    if (differs) std::memcpy(standing, pixels + at, bytes);
  }
  return differs;
}

// The changed parts of the picture: runs of changed tiles, row by row.
std::vector<Rect> changedParts(const u32* pixels) {
  std::vector<Rect> parts;
  for (i32 top = 0; top < pictureHeight; top += tileHeight) {
    const i32 bottom = std::min(top + tileHeight, pictureHeight);
    bool inRun = false;
    for (i32 left = 0; left < pictureWidth; left += tileWidth) {
      const Rect tile{left, top, std::min(left + tileWidth, pictureWidth), bottom};
      const bool differs = updateTile(pixels, tile);
      if (differs && inRun) {
        parts.back().right = tile.right;
      } else if (differs) {
        parts.push_back(tile);
      }
      inRun = differs;
    }
  }
  return parts;
}

void showChanges(const u32* pixels) {
  SDL_Surface* current = SDL_GetWindowSurface(window);
  if (current == nullptr) fail(ErrorNumber::serviceFailed, "The screen can't be drawn on");
  // A new surface may lie at the address of the old one: its size has to be looked at too.
  if (current != target || current->w != targetWidth || current->h != targetHeight) {
    target = current;
    targetWidth = current->w;
    targetHeight = current->h;
    fitPicture();
    paintWhole = true;
  }
  const bool whole = paintWhole;
  const std::vector<Rect> parts = changedParts(pixels);
  paintWhole = false;
  if (parts.empty()) return;
  const i32 pitch = target->pitch / static_cast<i32>(sizeof(u32));
  u32* corner =
      static_cast<u32*>(target->pixels) + static_cast<std::ptrdiff_t>(area.top) * pitch + area.left;
  std::vector<SDL_Rect> sent;
  for (const Rect& part : parts) {
    const Rect scaled = scaler->influenced(part);
    scaler->scale(pixels, corner, pitch, scaled);
    sent.push_back({area.left + scaled.left, area.top + scaled.top, scaled.right - scaled.left,
                    scaled.bottom - scaled.top});
  }
  if (whole) {
    SDL_UpdateWindowSurface(window);
  } else {
    SDL_UpdateWindowSurfaceRects(window, sent.data(), static_cast<int>(sent.size()));
  }
}

// Whether OpenGL here is drawn by a graphics processor, as a window that isn't shown tells.
bool probeGraphicsProcessor() {
  SDL_Window* probe = SDL_CreateWindow("", 0, 0, 16, 16, SDL_WINDOW_OPENGL | SDL_WINDOW_HIDDEN);
  if (probe == nullptr) return false;
  bool found = false;
  SDL_GLContext context = SDL_GL_CreateContext(probe);
  if (context != nullptr) {
    constexpr unsigned glRenderer = 0x1F01;
    using GetString = const unsigned char* (*)(unsigned);
    const auto getString = reinterpret_cast<GetString>(SDL_GL_GetProcAddress("glGetString"));
    const auto* name =
        getString == nullptr ? nullptr : reinterpret_cast<const char*>(getString(glRenderer));
    const std::string drawnBy = name == nullptr ? "" : name;
    found = true;
    for (const char* software : {"llvmpipe", "softpipe", "swrast", "Software"}) {
      if (drawnBy.find(software) != std::string::npos) found = false;
    }
    SDL_GL_DeleteContext(context);
  }
  SDL_DestroyWindow(probe);
  return found;
}

bool hasGraphicsProcessor() {
  static const bool known = probeGraphicsProcessor();
  return known;
}

// Whether the window's own surface can be had, in the form that the scaler writes.
bool openSurface() {
  SDL_SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0");
  const SDL_Surface* surface = SDL_GetWindowSurface(window);
  return surface != nullptr && (surface->format->format == SDL_PIXELFORMAT_RGB888 ||
                                surface->format->format == SDL_PIXELFORMAT_ARGB8888);
}

void show(const u32* pixels) {
  if (renderer != nullptr) {
    showTexture(pixels);
  } else {
    showChanges(pixels);
  }
}

// Makes room for pictures of another size.
void setPictureSize(i32 width, i32 height) {
  if (width == pictureWidth && height == pictureHeight) return;
  pictureWidth = width;
  pictureHeight = height;
  shownPixels.assign(static_cast<std::size_t>(width) * height, 0);
  target = nullptr;
  paintWhole = true;
  if (texture != nullptr) SDL_DestroyTexture(texture);
  texture = nullptr;
}

// The scale by the window's present size.
double fittingScale() {
  int width = 0;
  int height = 0;
  if (renderer != nullptr) {
    SDL_GetRendererOutputSize(renderer, &width, &height);
  } else if (const SDL_Surface* surface = SDL_GetWindowSurface(window); surface != nullptr) {
    width = surface->w;
    height = surface->h;
  }
  const double fitting = std::min(static_cast<double>(width) / logicalWidth,
                                  static_cast<double>(height) / logicalHeight);
  const double smallest = 1.0 / std::min(logicalWidth, logicalHeight);
  return std::clamp(fitting, smallest, renderer != nullptr ? largestScale : largestScaleInSoftware);
}

}  // namespace

void openScreen(i32 handle, i32 width, i32 height) {
  closeScreen();
  window = sdlWindowOf(handle);
  if (window == nullptr) {
    throw RuntimeError(ErrorNumber::serviceFailed, "There is no window to show the game in.");
  }
  logicalWidth = width;
  logicalHeight = height;
  if (hasGraphicsProcessor() || !openSurface()) openRenderer();
  scale = fittingScale();
  scaleWanted = scale;
}

void closeScreen() {
  if (texture != nullptr) SDL_DestroyTexture(texture);
  if (renderer != nullptr) SDL_DestroyRenderer(renderer);
  texture = nullptr;
  renderer = nullptr;
  target = nullptr;
  window = nullptr;
  scale = 1;
  pictureWidth = 0;
  pictureHeight = 0;
  shownPixels = {};
}

double screenScale() {
  if (window == nullptr) return scale;
  if (const double fitting = fittingScale(); fitting != scaleWanted) {
    scaleWanted = fitting;
    wantedSince = GetTickCount();
  }
  if (GetTickCount() - wantedSince >= settlingTime) scale = scaleWanted;
  return scale;
}

void showPicture(const u32* pixels, i32 width, i32 height) {
  if (window == nullptr) {
    throw RuntimeError(ErrorNumber::serviceFailed, "The screen isn't there to show a picture.");
  }
  while (GetTickCount() - lastShown < refreshPeriod) sleepToNextTick();
  SDL_PumpEvents();  // keeps the system from taking a loading game for a dead one
  setPictureSize(width, height);
  show(pixels);
  lastShown = GetTickCount();
}

void repaintScreen() {
  if (shownPixels.empty()) return;
  target = nullptr;
  paintWhole = true;
  show(std::vector<u32>(shownPixels).data());
}

}  // namespace glonks
