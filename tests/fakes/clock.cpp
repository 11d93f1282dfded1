#include "tests/fakes/clock.h"

#include <algorithm>

#include "base/clock.h"

namespace glonks {

u32 GetTickCount() { return fake::clockNow; }

void sleepUntilTick(u32 tick) { fake::clockNow = std::max(fake::clockNow, tick); }

i32 clockSeed() { return fake::nextSeed++; }
std::string dateText() { return "01/02/03"; }
std::string timeText() { return "04:05:06"; }

}  // namespace glonks
