#include "shell/padmenu.h"

#include <optional>

#include "present/screen/fconsole.h"
#include "present/services/gamepad.h"
#include "shell/menucontrols.h"
#include "shell/newgamepage.h"
#include "shell/toolkit/steering.h"

namespace glonks {
namespace {

std::optional<Steer> steerBy(PadButton button) {
  switch (button) {
    case PadButton::up:
      return Steer::up;
    case PadButton::down:
      return Steer::down;
    case PadButton::left:
      return Steer::left;
    case PadButton::right:
      return Steer::right;
    case PadButton::a:
      return Steer::press;
    case PadButton::b:
      return Steer::back;
    case PadButton::start:
      return Steer::menu;
    default:
      return std::nullopt;
  }
}

// From a page of the main window; the title page leads on by its button only.
void leavePage() {
  if (frame[titlePage].visible == False) mNew_Click();
}

void obey(const PadChange& change) {
  const bool repeated = change.kind == PadChange::Kind::repeated;
  if (change.kind != PadChange::Kind::pressed && !repeated) return;
  if (repeated && change.button > PadButton::right) return;
  const auto to = steerBy(change.button);
  if (to) steer(*to, to == Steer::back ? leavePage : nullptr);
}

}  // namespace

void startPadMenu() { lookWhileActive(servePads); }

i32 servePads(Flag first) {
  constexpr i32 withPad = 16;
  constexpr i32 withoutPad = 1000;  // soon enough for one that is plugged in
  if (fConsole.hWnd != 0) return withoutPad;
  readGamepads();
  if (first == True) forgetPadInput();
  while (const auto change = nextPadChange()) obey(*change);
  return hasGamepad() ? withPad : withoutPad;
}

}  // namespace glonks
