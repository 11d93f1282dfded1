#pragma once

#include "game/types.h"

// The steps of a pass that the play loops share.
namespace glonks {

inline constexpr i32 firstSpawnDelay = 500;     // ms after the start of a loop
inline constexpr i32 framePeriod = 25;          // ms, counted from the end of the Flip
inline constexpr i32 timePointsPeriod = 10000;  // ms
inline constexpr i32 timePoints = 3;            // each period

// The rules of one frame: physics, queued spawns, compaction, the scan of the board.
void stepRules();

// All that moves and lies over the background, up to the texts of the mode.
void drawMovingThings();

// Pays the time points when they are due, counted from now, with no making up.
void payTimePoints();

// A pass's last steps: the song's title and end, the system's messages, the pause when the game has
// lost the screen.
void endPass();

}  // namespace glonks
