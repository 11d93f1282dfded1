#pragma once

namespace glonks {

// Plays an Arcade level from its first frame to its last. Needs what play needs, with a level
// loaded for Arcade, and minuteStart.
void playArcade();

}  // namespace glonks
