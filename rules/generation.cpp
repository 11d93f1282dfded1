#include "rules/generation.h"

#include "base/clock.h"
#include "base/random.h"
#include "game/model/catalogue.h"
#include "game/model/model.h"
#include "rules/bowling.h"
#include "rules/points.h"
#include "rules/timer.h"

namespace glonks {
namespace {

constexpr i32 draws = 1000;           // kinds are drawn from 0 to 999
constexpr i32 calculatorShift = 100;  // taken off while the Pythagorean bonus is open

void enter(Piece& piece) {
  piece.alive = True;
  piece.column = static_cast<i16>(drawBelow(columnCount));
  piece.y = 0;
  piece.velocity = 1;
}

bool isTimed(const Piece& piece) {
  return piece.isBomb == True || piece.isBauble == True || piece.isGorgon == True ||
         piece.isShifter == True || piece.isCalculator == True;
}

void drawCalculator(Piece& piece) {
  i32 value = drawBelow(calculatorValues);
  if (pythagoreanDone == False) value -= calculatorShift;
  if (value < 0) {
    piece.imageIndex = negativeCalculatorSlot;
    piece.variety = -1;
  }
  piece.value = value == 0 ? 1 : value;
}

}  // namespace

void spawnPiece() {
  Piece& piece = grow(fallingPieces, fallingPiecesUpper);
  rtcRandomize(clockSeed());
  const i32 draw = drawBelow(draws);
  // Where ranges overlap the highest slot wins. Oddity 2: a slot that the level doesn't name has
  // the range 0 to 0, and so takes part in draw 0.
  for (i16 slot = 0; slot <= pieceCatalogUpper; ++slot) {
    const Piece& entry = catalogEntry(slot);
    if (entry.spawnLow <= draw && entry.spawnHigh >= draw) piece = entry;
  }
  enter(piece);
  if (isTimed(piece)) armTimer(piece);
  if (piece.isShifter == True) piece.direction = drawBelow(2) != 0 ? 1 : -1;
  if (piece.isCalculator == True) drawCalculator(piece);
  if (piece.isBowlingBall == True) openFullColumn(piece.column);
}

Piece& dropNamed(const std::string& name) {
  Piece& piece = grow(fallingPieces, fallingPiecesUpper);
  piece = catalogEntry(slotNamed(name));
  enter(piece);
  return piece;
}

}  // namespace glonks
