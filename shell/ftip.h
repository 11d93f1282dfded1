#pragma once

#include <string>

#include "shell/toolkit/controls.h"

// Form fTip: a tip at each start. It is the program's first form, and loads the main window.
namespace glonks {

inline Form fTip;
inline Image fTip_background;
inline TextBox tip;

// A line of the file of tips, all equally likely, or a greeting if none can be read. Seeds the
// random generator from the clock, except if the file can't be opened.
std::string pickTip();

// Start of the program: makes the key tables before anything else touches the random generator,
// picks a tip, and loads and shows fMain. The form itself is shown afterwards, so that it comes up
// on top.
void fTip_Form_Load();

}  // namespace glonks
