#pragma once

#include "base/types.h"

namespace glonks {

// Module mPlay: an Arcade level from its first frame to its last. Needs loadLevel and minuteStart.
void playArcade();

// Whether all goals of the level are met and none is failed.
Flag goalsMet();

}  // namespace glonks
