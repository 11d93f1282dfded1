#include "rules/bowlingscore.h"

#include <algorithm>
#include <numeric>

#include "base/text.h"

namespace glonks {
namespace {

// Writes the balls of one frame, and tells whether none of its pins stands after them.
bool markBalls(BowlingFrame& frame, const i16* ball, const i16* end) {
  i32 standing = pinCount;
  bool first = true;  // with this rack
  for (; ball != end; ++ball) {
    standing -= *ball;
    const bool cleared = standing == 0;
    frame.marks += cleared ? (first ? "X" : "/") : *ball == 0 ? "-" : plainNumber(*ball);
    if (cleared) standing = pinCount;
    first = cleared;
  }
  return first;
}

}  // namespace

BowlingGame bowlingGame(const std::vector<i16>& rolls) {
  BowlingGame game;
  const i16* ball = rolls.data();
  const i16* const end = ball + rolls.size();
  for (BowlingFrame& frame : game.frames) {
    if (ball == end) return game;
    const bool strike = ball[0] == pinCount;
    const bool spare = !strike && end - ball > 1 && ball[0] + ball[1] == pinCount;
    const std::ptrdiff_t counting = strike || spare ? 3 : 2;
    const std::ptrdiff_t own = &frame == &game.frames.back() ? counting : strike ? 1 : 2;
    game.points += std::accumulate(ball, ball + std::min(counting, end - ball), 0);
    if (counting <= end - ball) frame.total = game.points;
    const i16* const next = ball + std::min(own, end - ball);
    game.newRack = markBalls(frame, ball, next) || next - ball == own;
    game.over = &frame == &game.frames.back() && next - ball == own;
    ball = next;
  }
  return game;
}

}  // namespace glonks
