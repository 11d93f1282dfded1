#include "tests/fakes/clock.h"

#include "base/clock.h"

namespace glonks {

u32 GetTickCount() { return fake::clockNow; }

void sleepToNextTick() { ++fake::clockNow; }

i32 clockSeed() { return fake::nextSeed++; }
std::string dateText() { return "01/02/03"; }
std::string timeText() { return "04:05:06"; }

}  // namespace glonks
