#pragma once

#include <cmath>

#include "base/types.h"

// The game's one random generator. Draws are taken one at a time in a fixed order, so that the same
// state gives the same game: never write two draws into one expression. Tests put queued draws in
// its place.
namespace glonks {

// Seeds the generator: mixes `number` into the state that it finds (see RandomGenerator).
void rtcRandomize(i32 number);

// The next number of the generator in [0, 1), with 24 bits. `argument` has to be positive, which
// asks for the next value of the sequence; any other raises badCall.
float rtcRandomNext(float argument);

// The next number of the generator in [0, 1). One draw.
inline double Rnd() { return rtcRandomNext(1.0F); }

// A whole number from 0 to `count` - 1, all equally likely: floor(Rnd * count). One draw.
inline i32 drawBelow(i32 count) { return static_cast<i32>(std::floor(Rnd() * count)); }

}  // namespace glonks
