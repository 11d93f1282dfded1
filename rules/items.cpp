#include "rules/items.h"

#include "rules/bowling.h"
#include "rules/generation.h"
#include "rules/timer.h"

namespace glonks {

void dropItem(const std::string& name) {
  Piece& piece = dropNamed(name);
  armTimer(piece);
  if (name == "Bowling Ball") openFullColumn(piece.column);
}

}  // namespace glonks
