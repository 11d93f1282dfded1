#include "present/screen/fconsole.h"

#include "game/model/model.h"
#include "present/services/window.h"

namespace glonks {
namespace {

void (*closeRefused)() = nullptr;

void clickCloseBox() {
  fConsole_Unload();
  if (fConsole.hWnd != 0) closeRefused();
}

}  // namespace

void fConsole_Show(void (*keyDown)(), void (*closeAsked)(), void (*padGone)()) {
  closeRefused = closeAsked;
  fConsole.hWnd = openWindow(fConsole.caption, {keyDown, clickCloseBox, padGone});
}

void fConsole_Form_Unload(i16& cancel) {
  if (gameOver == False || paused == True) cancel = 1;  // a pause ends by its key alone
}

void fConsole_Unload() {
  if (fConsole.hWnd == 0) return;
  i16 cancel = 0;
  fConsole_Form_Unload(cancel);
  if (cancel != 0) return;
  closeWindow(fConsole.hWnd);
  fConsole.hWnd = 0;
}

}  // namespace glonks
