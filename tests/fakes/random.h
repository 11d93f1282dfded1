#pragma once

#include <deque>
#include <optional>

#include "base/randomgenerator.h"
#include "base/types.h"

// Queued draws, linked in the place of the game's random generator.
namespace glonks::fake {

// What rtcRandomNext returns, one after the other. With an empty queue it fails the test, unless
// there is a generator.
inline std::deque<double> draws;
inline std::optional<RandomGenerator> generator;

// The draw that makes drawBelow(count) give `result`.
constexpr double drawOf(i32 result, i32 count) { return (result + 0.5) / count; }

// From here draws come from a generator as fresh as at the program's start, once the queue is
// empty.
inline void useGenerator() { generator = RandomGenerator(); }

}  // namespace glonks::fake
