#pragma once

#include <SDL.h>

#include <string>

#include "base/types.h"

// Inside the services: SDL's window, over the whole screen or of a size of its own.
namespace glonks {

// The window that is open; nullptr if none is. Set by createSdlWindow and destroySdlWindow.
inline SDL_Window* sdlWindow = nullptr;

// Opens a window over the whole desktop and returns its handle. Raises serviceFailed.
i32 createSdlWindow(const std::string& caption);
void destroySdlWindow();

// The window of a handle; nullptr if that one isn't open.
SDL_Window* sdlWindowOf(i32 handle);

// Whether the open window covers the whole screen.
bool isFullScreen();

// Switches the open window between the whole screen and a size of its own: the one that it last
// had, at first the picture's own size or what the desktop has room for.
void switchFullScreen();

}  // namespace glonks
