#pragma once

#include "shell/toolkit/controls.h"

// Form fSplash: the about box.
namespace glonks {

void fSplash_Form_Load();     // each time that the form is opened
void fSplash_Image2_Click();  // opens the makers' address

inline Form fSplash;
inline Image fSplash_background;
inline Image fSplash_Image2;
inline Label fSplash_version;

}  // namespace glonks
