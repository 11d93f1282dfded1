#include "shell/fcontrols.h"

#include <string>

#include "present/services/gamepad.h"

namespace glonks {

void fControls_Form_Load() {
  setInside(fControls, "the control room", 5400, 5400, fControls_background,
            padInUse ? ":/forms/controls_pad.png" : ":/forms/controls.png");
  fControls_background.tabIndex = 0;  // there is nothing else to read
  std::string words =
      "Up and Down: move the pointer from row to row.  Left and Right: slide the row under the "
      "pointer.  1: drop a Slammer from your stock.  2: drop a Bomb.  3: set off all Bombs with "
      "a Detonator.  4: drop a Bowling Ball.  P: pause, and go on.  N: another song.  Escape: "
      "end the game.  Alt and Enter: whole screen or window.";
  if (padInUse) {
    words +=
        "  On the gamepad: cross or stick for the arrows, A, B, X and Y for 1 to 4, Start for P, a "
        "shoulder for N, Back twice for Escape.";
  }
  setWords(fControls_background, "The Keys", words);
  fControls.controls = {&fControls_background};
}

}  // namespace glonks
