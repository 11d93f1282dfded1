#include "rules/falling.h"

#include "base/random.h"
#include "game/model/model.h"
#include "game/model/resources.h"
#include "rules/bowling.h"

namespace glonks {
namespace {

constexpr i16 lastBounce = 5;
constexpr double bounceFactor = 0.75;
constexpr i16 ballEnd = 500;  // a ball below this y, and below the floor, has gone

void digWithBall(Piece& ball) {
  const auto target = static_cast<i16>(firstFreeRow(ball.column) - 1);
  if (target > -1) bowlOver(target, ball.column);
  if (ball.y > ballEnd) ball.alive = False;
}

// Oddity 4: the reversal doesn't look at the sign, so a piece that is still rising when the floor
// rises above it is sent down.
void bounce(Piece& piece, i16 floor) {
  piece.velocity = static_cast<i16>(roundHalfEven(-piece.velocity * bounceFactor));
  ++piece.bounces;
  piece.y = floor;
  const i32 sound = drawBelow(static_cast<i32>(connectSounds.size()));
  piece.landSound = connectSounds[static_cast<std::size_t>(sound)];
  piece.landSound->Play(0);
}

}  // namespace

i16 firstFreeRow(i16 column) {
  for (i16 row = 0; row < rowCount; ++row) {
    if (cellAt(row, column).occupied == False) return row;
  }
  // Oddity 3: a piece falls through a full column before the game is lost.
  return 0;
}

void movePieces() {
  const i16 upper = fallingPiecesUpper;
  for (i16 i = 0; i <= upper; ++i) {
    Piece& piece = fallingPiece(i);
    ++piece.velocity;
    piece.y = static_cast<i16>(piece.y + piece.velocity);
    const i16 floor = floorOf(firstFreeRow(piece.column));
    if (piece.y > floor) {
      if (piece.isBowlingBall != False) {
        digWithBall(piece);
      } else {
        bounce(piece, floor);
      }
    }
    if (piece.bounces == lastBounce) {
      piece.alive = False;
      if (piece.isBowlingBall == False) landPiece(i, piece.column);
    }
  }
}

void landPiece(i16 index, i16 column) {
  for (i16 row = 0; row < rowCount; ++row) {
    Cell& cell = cellAt(row, column);
    if (cell.occupied != False) continue;
    cell.occupied = True;
    static_cast<Piece&>(cell) = fallingPiece(index);
    if (landOn == True && cell.tallied == False && cell.name == landName) countDown(landLeft);
    cell.tallied = True;
    return;
  }
  _gameover->Play(0);
  gameOver = True;
}

void compactFalling() {
  keepIf(fallingPieces, fallingPiecesUpper, [](const Piece& piece) { return piece.alive == True; });
}

}  // namespace glonks
