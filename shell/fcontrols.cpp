#include "shell/fcontrols.h"

#include "present/services/gamepad.h"

namespace glonks {

void fControls_Form_Load() {
  setInside(fControls, "the control room", 5400, 5400, fControls_background,
            padInUse ? ":/forms/controls_pad.png" : ":/forms/controls.png");
  fControls.controls = {&fControls_background};
}

}  // namespace glonks
