#include "rules/bowling.h"

#include "game/model/model.h"
#include "game/model/resources.h"
#include "present/effects/effects.h"
#include "rules/removal.h"

namespace glonks {

void bowlOver(i16 row, i16 column) {
  _bowling01->Play(0);
  removePiece(row, column);
  impactAt(cellAt(row, column), True);  // emptied, it still holds its place
}

void openFullColumn(i16 column) {
  constexpr i16 topRow = rowCount - 1;
  if (cellAt(topRow, column).occupied == True) bowlOver(topRow, column);
}

}  // namespace glonks
