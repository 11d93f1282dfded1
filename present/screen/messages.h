#pragma once

namespace glonks {

// Handles all events that are waiting, those of the menu's windows and those of the game's, and may
// wait up to a millisecond for the next one. Raises what a handler has raised.
void letMessagesThrough();

}  // namespace glonks
