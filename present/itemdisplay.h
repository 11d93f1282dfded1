#pragma once

namespace glonks {

// The counters in the top band of the frame: goods, pieces left, credits and notes, by the mode.
void drawItems();

// The score, at the left of the top band.
void drawScore();

}  // namespace glonks
