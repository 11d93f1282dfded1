#include "rules/items.h"

#include "game/model/model.h"
#include "game/model/resources.h"
#include "rules/bowling.h"
#include "rules/generation.h"
#include "rules/timer.h"

namespace glonks {

void dropItem(const std::string& name) {
  Piece& piece = dropNamed(name);
  armTimer(piece);
  if (name == "Bowling Ball") openFullColumn(piece.column);
}

void detonate() {
  _detonate->Play(0);
  for (Row& row : playfield) {
    for (Cell& cell : row.cells) {
      if (cell.occupied == True && cell.isBomb == True) cell.expiry = 0;
    }
  }
}

}  // namespace glonks
