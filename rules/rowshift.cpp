#include "rules/rowshift.h"

#include "game/model/model.h"
#include "game/model/resources.h"

namespace glonks {

void shiftRow(Flag toLeft) {
  const i16 step = toLeft == True ? -1 : 1;
  Row& row = rowAt(selectedRow);
  Row shifted;
  for (Cell& cell : row.cells) {
    if (cell.occupied != True) continue;
    cell.column = static_cast<i16>(cell.column + step);
    if (cell.column >= columnCount) cell.column = 0;
    if (cell.column < 0) cell.column = columnCount - 1;
    Cell& place = shifted[cell.column];
    static_cast<Piece&>(place) = cell;
    place.occupied = True;
  }
  _changerow->Play(0);
  row = shifted;
  settlePieces();
}

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
