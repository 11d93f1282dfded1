#pragma once

namespace glonks {

// Draws the goals of an Arcade level with their counts in the top band of the frame. Also runs the
// frame's step of the level's timers and the test of its avoid goal: each may decide the level.
void drawGoals();

}  // namespace glonks
