#include "rules/timer.h"

#include <cmath>

#include "base/random.h"
#include "game/model/gametick.h"

namespace glonks {

void armTimer(Piece& piece) {
  const double span = static_cast<double>(piece.timerMax) - piece.timerMin;
  const auto drawn = static_cast<i64>(std::floor(Rnd() * span));
  piece.expiry = gameTickIn(drawn + piece.timerMin);
}

}  // namespace glonks
