#include "present/services/sdlwindow.h"

#include <algorithm>

#include "present/services/failure.h"

namespace glonks {
namespace {

constexpr i32 smallestWindow = 256;  // pixels

// What the window is like while it doesn't cover the whole screen; kept from game to game.
int ownWidth = 1024;
int ownHeight = 768;
bool ownMaximised = false;
bool placed = false;  // whether the window that is open has been so, and has a place to go back to

void noteOwnSize() {
  if (isFullScreen()) return;
  ownMaximised = (SDL_GetWindowFlags(sdlWindow) & SDL_WINDOW_MAXIMIZED) != 0;
  if (!ownMaximised) SDL_GetWindowSize(sdlWindow, &ownWidth, &ownHeight);
}

void takeOwnSize() {
  SDL_Rect room{0, 0, ownWidth, ownHeight};
  SDL_GetDisplayUsableBounds(SDL_GetWindowDisplayIndex(sdlWindow), &room);
  int top = 0, left = 0, bottom = 0, right = 0;  // the frame's, where the system tells
  SDL_GetWindowBordersSize(sdlWindow, &top, &left, &bottom, &right);
  room = {room.x + left, room.y + top, room.w - left - right, room.h - top - bottom};
  SDL_SetWindowSize(sdlWindow, std::min(ownWidth, room.w), std::min(ownHeight, room.h));
  if (!placed) SDL_SetWindowPosition(sdlWindow, SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED);
  placed = true;
  if (ownMaximised) SDL_MaximizeWindow(sdlWindow);
}

// The monitor under the pointer, which is the one that the player has clicked on; else the first.
SDL_Rect monitorInUse() {
  SDL_Point pointer;
  SDL_GetGlobalMouseState(&pointer.x, &pointer.y);
  SDL_Rect bounds{0, 0, smallestWindow, smallestWindow};
  for (int i = SDL_GetNumVideoDisplays() - 1; i >= 0; --i) {
    SDL_GetDisplayBounds(i, &bounds);
    if (SDL_PointInRect(&pointer, &bounds) == SDL_TRUE) break;
  }
  return bounds;
}

}  // namespace

i32 createSdlWindow(const std::string& caption) {
  SDL_SetMainReady();
  SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
  SDL_SetHint(SDL_HINT_APP_NAME, "Glonks");
  SDL_SetHint(SDL_HINT_VIDEO_MINIMIZE_ON_FOCUS_LOSS, "0");
  SDL_SetHint(SDL_HINT_VIDEO_X11_NET_WM_BYPASS_COMPOSITOR, "0");
  if (SDL_InitSubSystem(SDL_INIT_VIDEO) != 0) {
    fail(ErrorNumber::serviceFailed, "The screen can't be used");
  }
  SDL_FlushEvents(SDL_FIRSTEVENT, SDL_LASTEVENT);  // an earlier window's events concern nobody now
  SDL_DisableScreenSaver();
  // Of the monitor's size from the start: without a window manager nobody else makes it so.
  const SDL_Rect monitor = monitorInUse();
  sdlWindow = SDL_CreateWindow(
      caption.c_str(), monitor.x, monitor.y, monitor.w, monitor.h,
      SDL_WINDOW_FULLSCREEN_DESKTOP | SDL_WINDOW_RESIZABLE | SDL_WINDOW_ALLOW_HIGHDPI);
  if (sdlWindow == nullptr) fail(ErrorNumber::serviceFailed, "The game's window can't be opened");
  SDL_SetWindowMinimumSize(sdlWindow, smallestWindow, smallestWindow);
  placed = false;
  return static_cast<i32>(SDL_GetWindowID(sdlWindow));
}

void destroySdlWindow() {
  noteOwnSize();
  SDL_DestroyWindow(sdlWindow);
  sdlWindow = nullptr;
  SDL_QuitSubSystem(SDL_INIT_VIDEO);
}

SDL_Window* sdlWindowOf(i32 handle) {
  const bool same =
      sdlWindow != nullptr && SDL_GetWindowID(sdlWindow) == static_cast<Uint32>(handle);
  return same ? sdlWindow : nullptr;
}

bool isFullScreen() { return (SDL_GetWindowFlags(sdlWindow) & SDL_WINDOW_FULLSCREEN_DESKTOP) != 0; }

void switchFullScreen() {
  if (isFullScreen()) {
    SDL_SetWindowFullscreen(sdlWindow, 0);
    takeOwnSize();
  } else {
    noteOwnSize();
    SDL_SetWindowFullscreen(sdlWindow, SDL_WINDOW_FULLSCREEN_DESKTOP);
  }
}

}  // namespace glonks
