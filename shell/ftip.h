#pragma once

#include "shell/toolkit/controls.h"

// Form fTip: a tip at each start. It is the program's first form, and loads the main window.
namespace glonks {

inline Form fTip;
inline Image fTip_background;
inline TextBox tip;

// Start of the program: makes the key tables before anything else touches the random generator,
// picks a tip from "\init\1182", and loads and shows fMain. The form itself is shown afterwards, so
// that it stands above. Without a tip that can be read it greets the player.
void fTip_Form_Load();

}  // namespace glonks
