#pragma once

namespace glonks {

// Form fTip, the program's start: makes the key tables before anything else touches the random
// generator, then loads and shows fMain.
void fTip_Form_Load();

}  // namespace glonks
