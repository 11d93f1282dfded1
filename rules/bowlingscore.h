#pragma once

#include <array>
#include <string>
#include <vector>

#include "base/types.h"

// The score of ten-pin bowling: a strike (all ten with the first ball) adds the pins of the next
// two balls to its frame, a spare (all ten with both) those of the next one; the tenth frame has
// these balls in itself. The most is 300.
namespace glonks {

inline constexpr i16 pinCount = 10;
inline constexpr i16 bowlingFrames = 10;
inline constexpr i32 perfectGame = 300;

// A frame on the score sheet.
struct BowlingFrame {
  std::string marks;  // a ball each: "X" strike, "/" spare, "-" none, or the number of pins
  i32 total = -1;     // points up to here; -1 while balls that count are still to come
};

struct BowlingGame {
  std::array<BowlingFrame, bowlingFrames> frames;
  i32 points = 0;       // what the balls thrown so far come to
  bool newRack = true;  // the next ball meets ten pins
  bool over = false;    // there is no next ball
};

// The game that these balls have made, each the number of pins that it took: 0 to what stood.
BowlingGame bowlingGame(const std::vector<i16>& rolls);

}  // namespace glonks
