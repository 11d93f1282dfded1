#include "rules/bowling.h"

#include "game/model.h"
#include "game/resources.h"
#include "present/effects.h"
#include "rules/removal.h"

namespace glonks {

void bowlOver(i16 row, i16 column) {
  _bowling01->Play(0);
  removePiece(row, column);
  // The cell that has just been emptied still holds its y.
  const Cell& cell = playfield[static_cast<std::size_t>(row)][column];
  pushImpact(effectX(column), effectY(cell.y), True);
}

void openFullColumn(i16 column) {
  constexpr i16 topRow = rowCount - 1;
  if (playfield[topRow][column].occupied == True) bowlOver(topRow, column);
}

}  // namespace glonks
