#pragma once

#include "base/clock.h"
#include "game/model/model.h"

namespace glonks {

// ms from the end of a Flip to the next frame; nothing that the game waits for takes longer.
inline constexpr i32 framePeriod = 25;

// Milliseconds of game time: the clock less tickBase, which a pause moves on by its length. "Due"
// and "expired" always mean strictly below it.
inline i32 gameTick() { return static_cast<i32>(GetTickCount() - tickBase); }

// The game tick `wait` ms from now; it stays at the end of its 32 bits.
inline i32 gameTickIn(i64 wait) { return clamped<i32>(gameTick() + wait); }

}  // namespace glonks
