#pragma once

#include <deque>

#include "base/types.h"

// Queued draws, linked in the place of the game's random generator.
namespace glonks::fake {

// What rtcRandomNext gives, one after the other. With an empty queue it fails the test, unless a
// generator was asked for.
inline std::deque<float> draws;
inline i32 seedings = 0;  // calls of rtcRandomize

// The draw that makes drawBelow(count) give `result`.
float drawFor(i32 result, i32 count);
void queueDraw(i32 result, i32 count);

// From here draws come from a real generator, as fresh as at the program's start, once the queue is
// empty.
void useGenerator();

void resetRandom();

}  // namespace glonks::fake
