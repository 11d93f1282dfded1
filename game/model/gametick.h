#pragma once

#include "base/clock.h"
#include "game/model/model.h"

namespace glonks {

// Milliseconds of game time: the clock less tickBase, which a pause moves on by its length. Due or
// expired always means strictly below it.
inline i32 gameTick() { return static_cast<i32>(GetTickCount() - tickBase); }

}  // namespace glonks
