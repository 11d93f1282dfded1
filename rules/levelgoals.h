#pragma once

#include "base/types.h"

// The goals of an Arcade level: its timers, what they and the avoid goal decide, and whether the
// others are met.
namespace glonks {

// Whether all goals of the level are met and none is failed.
Flag goalsMet();

// Loses a level that isn't decided yet once too many pieces of avoidName are gone.
void testAvoidGoal();

// One frame of the time limit, which loses the level when it runs out, and of the survival timer,
// which wins it. For a timer that is on, in a level that isn't decided yet.
void stepLimit();
void stepSurvival();

// Seconds left of the running minute of both timers: 59 to 0, and below 0 when the minute is over.
i32 secondsLeft();

}  // namespace glonks
