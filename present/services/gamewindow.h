#pragma once

#include <SDL.h>

#include "base/types.h"

namespace glonks {

// Inside the services: SDL's window of a handle that openWindow gave; nullptr if it isn't open.
SDL_Window* gameWindow(i32 handle);

}  // namespace glonks
