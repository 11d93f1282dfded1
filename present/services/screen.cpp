#include "present/services/screen.h"

#include <SDL.h>

#include <algorithm>
#include <memory>
#include <vector>

#include "base/clock.h"
#include "present/services/failure.h"
#include "present/services/graphicsprocessor.h"
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
double scaleWanted = 1;               // by the window's present size
u32 wantedSince = 0;                  // tick
std::shared_ptr<const Raster> shown;  // the picture that stands on the screen
std::function<std::shared_ptr<const Raster>()> shownAgain;
u32 lastShown = 0;  // tick of the last picture

// With a graphics processor: one texture, which it scales.

SDL_Renderer* renderer = nullptr;
SDL_Texture* texture = nullptr;

void createTexture() {
  if (texture != nullptr) SDL_DestroyTexture(texture);
  SDL_RenderSetLogicalSize(renderer, shown->width, shown->height);
  texture = SDL_CreateTexture(renderer, SDL_PIXELFORMAT_RGB888, SDL_TEXTUREACCESS_STREAMING,
                              shown->width, shown->height);
  if (texture == nullptr) {
    fail(ErrorNumber::serviceFailed, "The screen can't take the game's picture");
  }
  SDL_SetTextureScaleMode(texture, SDL_ScaleModeLinear);
}

void openRenderer() {
  renderer = SDL_CreateRenderer(window, -1, 0);
  if (renderer == nullptr) fail(ErrorNumber::serviceFailed, "The screen can't be drawn on");
}

bool upload(const Rect& part) {
  const SDL_Rect place{part.left, part.top, part.right - part.left, part.bottom - part.top};
  return SDL_UpdateTexture(texture, &place, shown->row(part.top) + part.left, shown->width * 4) ==
         0;
}

void showTexture(const std::vector<Rect>& changes) {
  const bool sent = texture != nullptr && std::all_of(changes.begin(), changes.end(), upload);
  if (sent && changes.empty()) return;
  if (!sent) {
    createTexture();  // a display that was reset takes its textures with it
    if (!upload(shown->whole())) {
      fail(ErrorNumber::serviceFailed, "The screen can't take the game's picture");
    }
  }
  SDL_RenderClear(renderer);
  SDL_RenderCopy(renderer, texture, nullptr, nullptr);
  SDL_RenderPresent(renderer);
}

// Without one: the window's own surface, of which only what has changed is scaled and sent.

SDL_Surface* target = nullptr;  // SDL's own, new whenever the window's size has changed
i32 targetWidth = 0;
i32 targetHeight = 0;
std::unique_ptr<PictureScaler> scaler;  // to `area`
Rect area;                              // where the picture stands in the window
bool paintWhole = true;

// The largest rectangle of the picture's shape in the middle of the window.
void fitPicture() {
  const double fitting = std::min(static_cast<double>(target->w) / shown->width,
                                  static_cast<double>(target->h) / shown->height);
  const i32 width = std::max(1, static_cast<i32>(shown->width * fitting));
  const i32 height = std::max(1, static_cast<i32>(shown->height * fitting));
  area.left = (target->w - width) / 2;
  area.top = (target->h - height) / 2;
  area.right = area.left + width;
  area.bottom = area.top + height;
  scaler = std::make_unique<PictureScaler>(shown->width, shown->height, width, height);
  SDL_FillRect(target, nullptr, 0);
}

void showChanges(const std::vector<Rect>& changes) {
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
  const i32 pitch = target->pitch / static_cast<i32>(sizeof(u32));
  u32* corner =
      static_cast<u32*>(target->pixels) + static_cast<std::ptrdiff_t>(area.top) * pitch + area.left;
  std::vector<SDL_Rect> sent;
  for (const Rect& part : paintWhole ? std::vector<Rect>{shown->whole()} : changes) {
    const Rect scaled = scaler->influenced(part);
    scaler->scale([](i32 y) { return shown->row(y); }, corner, pitch, scaled);
    sent.push_back({area.left + scaled.left, area.top + scaled.top, scaled.right - scaled.left,
                    scaled.bottom - scaled.top});
  }
  if (paintWhole) {
    SDL_UpdateWindowSurface(window);
  } else if (!sent.empty()) {
    SDL_UpdateWindowSurfaceRects(window, sent.data(), static_cast<int>(sent.size()));
  }
  paintWhole = false;
}

// Whether the window's own surface can be had, in the form that the scaler writes.
bool openSurface() {
  SDL_SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0");
  const SDL_Surface* surface = SDL_GetWindowSurface(window);
  return surface != nullptr && (surface->format->format == SDL_PIXELFORMAT_RGB888 ||
                                surface->format->format == SDL_PIXELFORMAT_ARGB8888);
}

void show(const std::vector<Rect>& changes) {
  if (renderer != nullptr) {
    showTexture(changes);
  } else {
    showChanges(changes);
  }
}

// Everything is sent with the next picture.
void forgetScreen() {
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
  forgetScreen();
  if (renderer != nullptr) SDL_DestroyRenderer(renderer);
  renderer = nullptr;
  window = nullptr;
  scale = 1;
  shown = nullptr;
  shownAgain = nullptr;
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

void showPicture(const ShownPicture& picture) {
  if (window == nullptr) {
    throw RuntimeError(ErrorNumber::serviceFailed, "The screen isn't there to show a picture.");
  }
  sleepUntilTick(lastShown + refreshPeriod);
  SDL_PumpEvents();  // keeps the system from taking a loading game for a dead one
  if (picture.raster != shown) forgetScreen();
  shown = picture.raster;
  shownAgain = picture.again;
  show(picture.changes);
  lastShown = GetTickCount();
}

void repaintScreen() {
  if (shown == nullptr) return;
  shown = shownAgain();
  forgetScreen();
  show({});
}

}  // namespace glonks
