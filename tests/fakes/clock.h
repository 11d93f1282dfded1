#pragma once

#include "base/types.h"

// A clock that stands still until it is set; linked in the place of the real one.
namespace glonks::fake {

inline u32 clockNow = 1000;  // what GetTickCount returns, ms
inline i32 nextSeed = 1;     // what clockSeed returns next; each call counts it up

inline void resetClock() { clockNow = 1000, nextSeed = 1; }

}  // namespace glonks::fake
