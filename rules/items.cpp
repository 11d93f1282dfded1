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
  forEachPieceAtRest([](Cell& cell) {
    if (cell.isBomb == True) cell.expiry = 0;
  });
}

}  // namespace glonks
