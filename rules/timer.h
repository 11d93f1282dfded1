#pragma once

#include "game/model/model.h"

namespace glonks {

// Sets the piece's `expiry` to a random time between timerMin and timerMax from now: one draw,
// floor(Rnd * (timerMax - timerMin)) + gameTick + timerMin.
void armTimer(Piece& piece);

}  // namespace glonks
