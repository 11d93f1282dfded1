#include "rules/lane.h"

#include <algorithm>

#include "base/random.h"
#include "present/effects/effects.h"
#include "rules/placing.h"

namespace glonks {
namespace {

constexpr i16 longestRow = 4;

}  // namespace

void setPins() {
  i32 left = drawBelow(columnCount - longestRow + 1);
  for (i16 row = 0; row < longestRow; ++row) {
    const i32 pins = longestRow - row;
    for (i32 i = 0; i < pins; ++i) placeAtRest("Pin", row, static_cast<i16>(left + i));
    if (pins > 1) left += drawBelow(2);
  }
}

i16 pinsStanding() {
  auto pins = std::count_if(fallingPieces.begin(), fallingPieces.end(),
                            [](const Piece& piece) { return piece.isPin == True; });
  forEachPieceAtRest([&](const Cell& cell) { pins += cell.isPin == True ? 1 : 0; });
  return static_cast<i16>(pins);
}

void sweepPins() {
  forEachPieceAtRest([](Cell& cell) {
    impactAt(cell, True);
    cell.occupied = False;
  });
}

Piece* ballInFlight() {
  const auto ball = std::find_if(fallingPieces.begin(), fallingPieces.end(),
                                 [](const Piece& piece) { return piece.isBowlingBall == True; });
  return ball == fallingPieces.end() ? nullptr : &*ball;
}

}  // namespace glonks
