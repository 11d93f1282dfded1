#pragma once

namespace glonks {

// Text lines in the top band of the frame: the counters of goods, credits and notes, and an Arcade
// level's goals, which also carry the steps of its timers.
void drawItems();
void drawGoals();

}  // namespace glonks
