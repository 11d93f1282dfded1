#pragma once

#include "base/types.h"

// What the rules pay, and the times and counts behind it. From these the level tool works out what
// a level can bring at most.
namespace glonks {

inline constexpr i32 timePointsPeriod = 10'000;  // ms
inline constexpr i32 timePoints = 3;             // each period
inline constexpr i32 diamondPoints = 100;
inline constexpr i32 baublePoints = 500;      // for one whose timer runs out
inline constexpr i32 baubleSpawns = 3;        // pieces queued by one that is removed before that
inline constexpr i32 calculatorValues = 200;  // different values of a Calculator
inline constexpr i32 pythagoreanPoints = 2500;
inline constexpr i32 cocktailPoints = 5000;
inline constexpr i32 fruitPoints = 100;      // that a cocktail adds to each Glonk
inline constexpr i32 slamBonusPoints = 400;  // for every two entries of slammed runs

}  // namespace glonks
