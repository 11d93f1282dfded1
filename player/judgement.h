#pragma once

#include "player/position.h"

// What a playing program thinks of a board, and of what happens on it. Worth is counted in tenths
// of a plain piece that is removed. The numbers were found by playing Freestyle with others.
namespace glonks {

inline constexpr double pieceWorth = 10;
inline constexpr double keyCost = 0.5;  // of a key pressed

// What removals are worth, by the goals as they stand.
double worthOf(const Gain& gain);

// How well a settled board lies for what is to come.
double lieOf(const Position& position);

// The same, as far as high columns and pairs tell it.
double lieAtFirstSight(const Position& position);

}  // namespace glonks
