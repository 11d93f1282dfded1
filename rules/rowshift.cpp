#include "rules/rowshift.h"

#include "game/model/model.h"
#include "game/model/resources.h"
#include "rules/settling.h"

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

}  // namespace glonks
