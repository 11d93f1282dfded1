#pragma once

#include "base/types.h"

namespace glonks {

// Handles all events that are waiting, those of the menu's windows and those of the game's. If the
// game's window has none, waits for the next one, but at most to the tick `until` of GetTickCount;
// the menu's windows are put away during a game, so theirs can stay until then. The time before the
// wait is used for what the next picture already has. Raises what a handler has raised.
void letMessagesThrough(u32 until);

}  // namespace glonks
