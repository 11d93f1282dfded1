#include "rules/timer.h"

#include <cmath>

#include "game/gametick.h"
#include "game/random.h"

namespace glonks {

void armTimer(Piece& piece) {
  const double span = static_cast<double>(piece.timerMax) - piece.timerMin;
  const auto drawn = static_cast<i64>(std::floor(Rnd() * span));
  piece.expiry = held<i32>(drawn + gameTick() + piece.timerMin);
}

}  // namespace glonks
