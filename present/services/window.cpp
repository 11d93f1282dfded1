#include "present/services/window.h"

#include <SDL.h>

#include <utility>

#include "base/clock.h"
#include "present/services/audiodevice.h"
#include "present/services/gamepad.h"
#include "present/services/keyboardstate.h"
#include "present/services/messagewait.h"
#include "present/services/screen.h"
#include "present/services/sdlwindow.h"

namespace glonks {
namespace {

WindowEvents handlers;
bool focusLost = false;
bool minimised = false;
u32 lastWait = 0;         // tick of the end of the last wait for messages
bool repaintDue = false;  // the window's content has been lost, or its size has changed

void loseFocus() {
  focusLost = true;
  releaseAllKeys();
}

void regainFocus() {
  focusLost = false;
  minimised = false;
  muteHeldKeys();
  forgetPadInput();
}

void handleKeyDown(const SDL_KeyboardEvent& event) {
  const SDL_Scancode code = event.keysym.scancode;
  if (code == SDL_SCANCODE_RETURN && (event.keysym.mod & KMOD_ALT) != 0) {
    if (event.repeat == 0) switchFullScreen();
    return;
  }
  if (focusLost || !pressKey(code)) return;
  padInUse = false;
  handlers.keyDown();
}

// The key that a pad's button stands for.
unsigned char keyOf(PadButton button) {
  constexpr unsigned char codes[] = {200, 208, 203, 205, 2, 3, 4, 5, 25, padBackCode, 49};
  return codes[static_cast<std::size_t>(button)];
}

// The last three are taps: held, they would act again at each event of another key.
void handlePadPress(PadButton button) {
  if (focusLost) return;
  if (button < PadButton::start) {
    holdPadKey(keyOf(button), true);
  } else {
    tapKey(keyOf(button));
  }
  handlers.keyDown();
}

void handlePadChange(const PadChange& change) {
  switch (change.kind) {
    case PadChange::Kind::pressed:
    case PadChange::Kind::repeated:
      handlePadPress(change.button);
      break;
    case PadChange::Kind::released:
      holdPadKey(keyOf(change.button), false);
      break;
    case PadChange::Kind::gone:
      if (handlers.padGone != nullptr) handlers.padGone();
      break;
  }
}

// True if a pad has done anything.
bool handlePads() {
  readGamepads();
  bool any = false;
  while (const auto change = nextPadChange()) {
    any = true;
    handlePadChange(*change);
  }
  return any;
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
      repaintDue = true;
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
      releaseKey(event.key.keysym.scancode);
      break;
    case SDL_WINDOWEVENT:
      handleWindowEvent(event.window);
      break;
    case SDL_RENDER_TARGETS_RESET:
    case SDL_RENDER_DEVICE_RESET:
      repaintDue = true;  // only changes are sent, so the rest would stay lost
      break;
    case SDL_AUDIODEVICEREMOVED:
      // 0: a device that nobody had opened
      if (event.adevice.iscapture == 0 && event.adevice.which != 0) noteDeviceRemoved();
      break;
    default:
      break;
  }
}

// True if anything was waiting.
bool handleWaiting() {
  bool any = handlePads();
  for (SDL_Event event; SDL_PollEvent(&event) != 0;) {
    any = true;
    handle(event);
    if (sdlWindow == nullptr) return true;
  }
  if (std::exchange(repaintDue, false)) repaintScreen();
  return any;
}

// The wait ends as far into a millisecond as it has begun. A frame that took long begins the wait
// late in one; the last millisecond is then for the clock, so that the next frame isn't later
// still. That costs a second awakening, which the usual short frames go without. True if a message
// was handled.
bool waitForMessage(u32 until) {
  constexpr u32 longFrame = 2;  // ms
  const u32 now = GetTickCount();
  const bool toTheTick = now - lastWait >= longFrame;
  const i32 wait = static_cast<i32>(until - now) - (toTheTick ? 1 : 0);
  if (wait > 0 && waitForSystemMessage(wait)) {
    handleWaiting();
    return true;
  }
  if (toTheTick) sleepUntilTick(until);
  return false;
}

}  // namespace

i32 openWindow(const std::string& caption, const WindowEvents& events) {
  const i32 handle = createSdlWindow(caption);
  SDL_StopTextInput();  // keys are for the game, not for an input method
  handlers = events;
  focusLost = false;
  minimised = false;
  repaintDue = false;
  forgetKeys();
  forgetPadInput();
  SDL_RaiseWindow(sdlWindow);
  return handle;
}

void closeWindow(i32 handle) {
  if (sdlWindowOf(handle) == nullptr) return;
  closeScreen();
  destroySdlWindow();
}

void setWindowState(i32 handle, WindowState state) {
  if (sdlWindowOf(handle) == nullptr || !isFullScreen()) return;
  if (state == WindowState::normal) {
    SDL_RestoreWindow(sdlWindow);
  } else {
    SDL_MaximizeWindow(sdlWindow);
  }
}

void setWindowTitle(i32 handle, const std::string& title) {
  if (sdlWindowOf(handle) != nullptr) SDL_SetWindowTitle(sdlWindow, title.c_str());
}

void letWindowMessagesThrough(u32 until) {
  if (sdlWindow == nullptr || handleWaiting()) return;
  while (true) {
    const u32 end = nextPadLook(until);
    const bool handled = waitForMessage(end);
    lastWait = GetTickCount();
    if (handled || end == until || handlePads()) return;
  }
}

bool screenLost() { return focusLost || minimised; }

void ShowCursor(i32 show) { SDL_ShowCursor(show != 0 ? SDL_ENABLE : SDL_DISABLE); }

}  // namespace glonks
