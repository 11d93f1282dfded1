#include "rules/settling.h"

#include "game/model/model.h"

namespace glonks {

void settlePieces() {
  constexpr i16 bouncesOfSettling = 4;
  for (i32 row = 1; row < rowCount; ++row) {
    for (i32 column = 0; column < columnCount; ++column) {
      Cell& cell = cellAt(row, column);
      if (cell.occupied != True || cellAt(row - 1, column).occupied != False) continue;
      Piece& piece = grow(fallingPieces, fallingPiecesUpper);
      piece = cell;
      piece.bounces = bouncesOfSettling;
      piece.alive = True;
      cell.occupied = False;
      cell.alive = False;
    }
  }
}

}  // namespace glonks
