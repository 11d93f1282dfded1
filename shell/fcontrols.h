#pragma once

#include "shell/toolkit/controls.h"

// Form fControls: a chart of the keys, with a gamepad's buttons beside them while one is in use.
namespace glonks {

void fControls_Form_Load();  // each time that the form is opened

inline Form fControls;
inline Image fControls_background;

}  // namespace glonks
