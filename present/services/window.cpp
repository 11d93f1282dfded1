#include "present/services/window.h"

#include <SDL.h>

#include <algorithm>
#include <array>
#include <utility>

#include "base/clock.h"
#include "base/errors.h"
#include "present/services/audiodevice.h"
#include "present/services/gamewindow.h"
#include "present/services/screen.h"

namespace glonks {
namespace {

constexpr i32 smallestWindow = 256;  // pixels

SDL_Window* window = nullptr;

WindowEvents handlers;
bool focusLost = false;
bool minimised = false;
std::array<unsigned char, keyCount> keys = {};
// Keys that were held when the focus came back: dead until they are let go.
std::array<bool, SDL_NUM_SCANCODES> stale = {};

// The physical keys and their DirectInput scan codes.
// clang-format off
constexpr std::pair<SDL_Scancode, unsigned char> scanCodes[] = {
    {SDL_SCANCODE_ESCAPE, 1}, {SDL_SCANCODE_1, 2}, {SDL_SCANCODE_2, 3}, {SDL_SCANCODE_3, 4},
    {SDL_SCANCODE_4, 5}, {SDL_SCANCODE_5, 6}, {SDL_SCANCODE_6, 7}, {SDL_SCANCODE_7, 8},
    {SDL_SCANCODE_8, 9}, {SDL_SCANCODE_9, 10}, {SDL_SCANCODE_0, 11}, {SDL_SCANCODE_MINUS, 12},
    {SDL_SCANCODE_EQUALS, 13}, {SDL_SCANCODE_BACKSPACE, 14}, {SDL_SCANCODE_TAB, 15},
    {SDL_SCANCODE_Q, 16}, {SDL_SCANCODE_W, 17}, {SDL_SCANCODE_E, 18}, {SDL_SCANCODE_R, 19},
    {SDL_SCANCODE_T, 20}, {SDL_SCANCODE_Y, 21}, {SDL_SCANCODE_U, 22}, {SDL_SCANCODE_I, 23},
    {SDL_SCANCODE_O, 24}, {SDL_SCANCODE_P, 25}, {SDL_SCANCODE_LEFTBRACKET, 26},
    {SDL_SCANCODE_RIGHTBRACKET, 27}, {SDL_SCANCODE_RETURN, 28}, {SDL_SCANCODE_LCTRL, 29},
    {SDL_SCANCODE_A, 30}, {SDL_SCANCODE_S, 31}, {SDL_SCANCODE_D, 32}, {SDL_SCANCODE_F, 33},
    {SDL_SCANCODE_G, 34}, {SDL_SCANCODE_H, 35}, {SDL_SCANCODE_J, 36}, {SDL_SCANCODE_K, 37},
    {SDL_SCANCODE_L, 38}, {SDL_SCANCODE_SEMICOLON, 39}, {SDL_SCANCODE_APOSTROPHE, 40},
    {SDL_SCANCODE_GRAVE, 41}, {SDL_SCANCODE_LSHIFT, 42}, {SDL_SCANCODE_BACKSLASH, 43},
    {SDL_SCANCODE_Z, 44}, {SDL_SCANCODE_X, 45}, {SDL_SCANCODE_C, 46}, {SDL_SCANCODE_V, 47},
    {SDL_SCANCODE_B, 48}, {SDL_SCANCODE_N, 49}, {SDL_SCANCODE_M, 50}, {SDL_SCANCODE_COMMA, 51},
    {SDL_SCANCODE_PERIOD, 52}, {SDL_SCANCODE_SLASH, 53}, {SDL_SCANCODE_RSHIFT, 54},
    {SDL_SCANCODE_KP_MULTIPLY, 55}, {SDL_SCANCODE_LALT, 56}, {SDL_SCANCODE_SPACE, 57},
    {SDL_SCANCODE_CAPSLOCK, 58}, {SDL_SCANCODE_F1, 59}, {SDL_SCANCODE_F2, 60},
    {SDL_SCANCODE_F3, 61}, {SDL_SCANCODE_F4, 62}, {SDL_SCANCODE_F5, 63}, {SDL_SCANCODE_F6, 64},
    {SDL_SCANCODE_F7, 65}, {SDL_SCANCODE_F8, 66}, {SDL_SCANCODE_F9, 67}, {SDL_SCANCODE_F10, 68},
    {SDL_SCANCODE_KP_7, 71}, {SDL_SCANCODE_KP_8, 72}, {SDL_SCANCODE_KP_9, 73},
    {SDL_SCANCODE_KP_4, 75}, {SDL_SCANCODE_KP_5, 76}, {SDL_SCANCODE_KP_6, 77},
    {SDL_SCANCODE_KP_1, 79}, {SDL_SCANCODE_KP_2, 80}, {SDL_SCANCODE_KP_3, 81},
    {SDL_SCANCODE_KP_0, 82}, {SDL_SCANCODE_F11, 87}, {SDL_SCANCODE_F12, 88},
    {SDL_SCANCODE_KP_ENTER, 156}, {SDL_SCANCODE_RCTRL, 157}, {SDL_SCANCODE_RALT, 184},
    {SDL_SCANCODE_HOME, 199}, {SDL_SCANCODE_UP, 200}, {SDL_SCANCODE_PAGEUP, 201},
    {SDL_SCANCODE_LEFT, 203}, {SDL_SCANCODE_RIGHT, 205}, {SDL_SCANCODE_END, 207},
    {SDL_SCANCODE_DOWN, 208}, {SDL_SCANCODE_PAGEDOWN, 209}, {SDL_SCANCODE_INSERT, 210},
    {SDL_SCANCODE_DELETE, 211}
};
// clang-format on

[[noreturn]] void fail(const std::string& trouble) {
  throw RuntimeError(ErrorNumber::serviceFailed, trouble + " (" + SDL_GetError() + ").");
}

void setKey(SDL_Scancode code, bool down) {
  for (const auto& [key, scanCode] : scanCodes) {
    if (key == code) keys[scanCode] = down ? 0x80 : 0;
  }
}

void loseFocus() {
  focusLost = true;
  keys.fill(0);
}

void regainFocus() {
  focusLost = false;
  minimised = false;
  int count = 0;
  const Uint8* held = SDL_GetKeyboardState(&count);
  for (int i = 0; i < std::min<int>(count, SDL_NUM_SCANCODES); ++i) stale[i] = held[i] != 0;
}

// Between the whole screen and a window of the picture's own size, or what the desktop has room
// for.
void switchFullScreen() {
  constexpr int ownWidth = 1024;
  constexpr int ownHeight = 768;
  if ((SDL_GetWindowFlags(window) & SDL_WINDOW_FULLSCREEN_DESKTOP) == 0) {
    SDL_SetWindowFullscreen(window, SDL_WINDOW_FULLSCREEN_DESKTOP);
    return;
  }
  SDL_SetWindowFullscreen(window, 0);
  SDL_Rect room{0, 0, ownWidth, ownHeight};
  SDL_GetDisplayUsableBounds(SDL_GetWindowDisplayIndex(window), &room);
  SDL_SetWindowSize(window, std::min(ownWidth, room.w), std::min(ownHeight, room.h));
  SDL_SetWindowPosition(window, SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED);
}

void handleKeyDown(const SDL_KeyboardEvent& event) {
  const SDL_Scancode code = event.keysym.scancode;
  if (code == SDL_SCANCODE_RETURN && (event.keysym.mod & KMOD_ALT) != 0) {
    if (event.repeat == 0) switchFullScreen();
    return;
  }
  if (stale[code] || focusLost) return;
  setKey(code, true);
  handlers.keyDown();
}

void handleWindowEvent(const SDL_WindowEvent& event) {
  switch (event.event) {
    case SDL_WINDOWEVENT_FOCUS_LOST:
      loseFocus();
      break;
    case SDL_WINDOWEVENT_FOCUS_GAINED:
      regainFocus();
      break;
    case SDL_WINDOWEVENT_MINIMIZED:
      minimised = true;
      break;
    case SDL_WINDOWEVENT_RESTORED:
    case SDL_WINDOWEVENT_MAXIMIZED:
      minimised = false;
      break;
    case SDL_WINDOWEVENT_EXPOSED:
    case SDL_WINDOWEVENT_SIZE_CHANGED:
      repaintScreen();
      break;
    case SDL_WINDOWEVENT_CLOSE:
      handlers.closeAsked();
      break;
    default:
      break;
  }
}

void handle(const SDL_Event& event) {
  switch (event.type) {
    case SDL_KEYDOWN:
      handleKeyDown(event.key);
      break;
    case SDL_KEYUP:
      setKey(event.key.keysym.scancode, false);
      stale[event.key.keysym.scancode] = false;
      break;
    case SDL_WINDOWEVENT:
      handleWindowEvent(event.window);
      break;
    case SDL_AUDIODEVICEREMOVED:
      // 0: a device that nobody had opened
      if (event.adevice.iscapture == 0 && event.adevice.which != 0) noteDeviceRemoved();
      break;
    default:
      break;
  }
}

}  // namespace

i32 openWindow(const std::string& caption, const WindowEvents& events) {
  SDL_SetMainReady();
  SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
  SDL_SetHint(SDL_HINT_APP_NAME, "Glonks");
  SDL_SetHint(SDL_HINT_VIDEO_MINIMIZE_ON_FOCUS_LOSS, "0");
  SDL_SetHint(SDL_HINT_VIDEO_X11_NET_WM_BYPASS_COMPOSITOR, "0");
  if (SDL_InitSubSystem(SDL_INIT_VIDEO) != 0) fail("The screen can't be used");
  SDL_FlushEvents(SDL_FIRSTEVENT, SDL_LASTEVENT);  // those of a window before are nobody's now
  SDL_DisableScreenSaver();
  // Of the desktop's size from the start: without a window manager nobody else makes it so.
  SDL_Rect desktop{0, 0, smallestWindow, smallestWindow};
  SDL_GetDisplayBounds(0, &desktop);
  window = SDL_CreateWindow(caption.c_str(), desktop.x, desktop.y, desktop.w, desktop.h,
                            SDL_WINDOW_FULLSCREEN_DESKTOP | SDL_WINDOW_RESIZABLE);
  if (window == nullptr) fail("The game's window can't be opened");
  SDL_SetWindowMinimumSize(window, smallestWindow, smallestWindow);
  SDL_StopTextInput();  // keys are for the game, not for an input method
  handlers = events;
  focusLost = false;
  minimised = false;
  keys.fill(0);
  stale.fill(false);
  SDL_RaiseWindow(window);
  return static_cast<i32>(SDL_GetWindowID(window));
}

void closeWindow(i32 handle) {
  if (gameWindow(handle) == nullptr) return;
  closeScreen();
  SDL_DestroyWindow(window);
  window = nullptr;
  SDL_QuitSubSystem(SDL_INIT_VIDEO);
}

void setWindowState(i32 handle, WindowState state) {
  if (gameWindow(handle) == nullptr) return;
  if (state == WindowState::normal) {
    SDL_RestoreWindow(window);
  } else {
    SDL_MaximizeWindow(window);
  }
}

void setWindowTitle(i32 handle, const std::string& title) {
  if (gameWindow(handle) != nullptr) SDL_SetWindowTitle(window, title.c_str());
}

void letWindowMessagesThrough() {
  if (window == nullptr) return;
  bool any = false;
  for (SDL_Event event; SDL_PollEvent(&event) != 0;) {
    any = true;
    handle(event);
    if (window == nullptr) return;
  }
  if (!any) sleepToNextTick();
}

void ShowCursor(i32 show) { SDL_ShowCursor(show != 0 ? SDL_ENABLE : SDL_DISABLE); }

SDL_Window* gameWindow(i32 handle) {
  const bool same = window != nullptr && SDL_GetWindowID(window) == static_cast<Uint32>(handle);
  return same ? window : nullptr;
}

bool screenLost() { return focusLost || minimised; }

const unsigned char* keyTable() { return keys.data(); }

}  // namespace glonks
