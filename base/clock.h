#pragma once

#include <string>

#include "base/types.h"

// The one place that asks the system for the time, and the one that sleeps. Tests put a clock that
// they set themselves in its place.
namespace glonks {

// Milliseconds since the program's start, from a clock that never jumps. Starting at 1 instead of
// the machine's own count keeps game ticks positive for the first 24 days of a run.
u32 GetTickCount();

// Sleeps to the start of a tick of GetTickCount. Doesn't sleep if that has passed.
void sleepUntilTick(u32 tick);

// A number that differs from run to run and from call to call, for seeding.
i32 clockSeed();

// The current date and time in the short forms of the system's locale.
std::string dateText();
std::string timeText();

}  // namespace glonks
