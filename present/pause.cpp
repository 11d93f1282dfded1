#include "present/pause.h"

#include "base/clock.h"
#include "game/model/gametick.h"
#include "game/model/model.h"
#include "present/screen/display.h"
#include "present/screen/fconsole.h"
#include "present/screen/messages.h"
#include "present/services/bass.h"
#include "present/services/gamepad.h"
#include "present/services/window.h"

namespace glonks {
namespace {

// What a pause tells, by the names of keys or those of a gamepad.
const char* resumeLine() {
  return padInUse ? "Paused...  Press Start to resume." : "Paused...  Press the P key to resume.";
}
const char* endingTitle() {
  return padInUse ? "Glonks is paused: press Start to go on, then Back twice to end the game"
                  : "Glonks is paused: press P to go on, then Escape to end the game";
}

void showPause() {
  constexpr i32 textX = 10;
  constexpr i32 textY = 20;
  backBuffer->BltColorFill({}, RGB(0, 0, 0));
  backBuffer->DrawText(textX, textY, resumeLine(), False);
  primarySurface->Flip(nullptr, flipWait);
}

void waitForScreen() {
  setWindowState(fConsole.hWnd, WindowState::maximised);
  while (dd->TestCooperativeLevel() != 0) letMessagesThrough(GetTickCount() + framePeriod);
  setWindowState(fConsole.hWnd, WindowState::normal);
  dd->RestoreAllSurfaces();
}

void resume() {
  ShowCursor(0);
  setWindowTitle(fConsole.hWnd, fConsole.caption);
  paused = False;
  BASS_Start();
}

// Takes game time back to `tick`.
void setBack(i32 tick, i32 keyTickBefore) {
  const i32 passed = gameTick() - tick;
  tickBase += static_cast<u32>(passed);
  // The key event that ended the pause has set lastKeyTick by the time that has been taken back.
  if (lastKeyTick != keyTickBefore) lastKeyTick = tick;
}

void waitInPause() {
  while (paused == True) {
    letMessagesThrough(GetTickCount() + framePeriod);
    if (dd->TestCooperativeLevel() == 0) {
      showPause();
    } else {
      waitForScreen();
    }
  }
}

// The messages of one call may hold the P that ends this pause and another one that begins the
// next: that pause then runs and ends within this one. A failure ends the pause.
void pause() {
  ShowCursor(1);
  paused = True;
  const i32 tick = gameTick();
  const i32 keyTickBefore = lastKeyTick;
  BASS_Pause();
  try {
    waitInPause();
  } catch (...) {
    if (paused == True) resume();
    setBack(tick, keyTickBefore);
    throw;
  }
  setBack(tick, keyTickBefore);
}

}  // namespace

void togglePause() {
  if (paused == True) {
    resume();
  } else {
    pause();
  }
}

void pauseByCloseBox() {
  if (inPlay == False) return;
  setWindowTitle(fConsole.hWnd, endingTitle());
  if (paused == False) pause();
}

void pauseByLostPad() {
  if (inPlay == True && paused == False) pause();
}

}  // namespace glonks
