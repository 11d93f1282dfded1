#pragma once

#include <SDL.h>

#include <memory>

// Inside the services: SDL's surfaces, each freed with its owner.
namespace glonks {

struct SdlSurfaceDeleter {
  void operator()(SDL_Surface* surface) const { SDL_FreeSurface(surface); }
};
using SdlSurface = std::unique_ptr<SDL_Surface, SdlSurfaceDeleter>;

}  // namespace glonks
