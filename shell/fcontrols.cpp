#include "shell/fcontrols.h"

namespace glonks {

void fControls_Form_Load() {
  setInside(fControls, "the control room", 5400, 5400, fControls_background,
            ":/forms/controls.png");
  fControls.controls = {&fControls_background};
}

}  // namespace glonks
