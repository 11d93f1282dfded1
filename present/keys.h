#pragma once

// Keyboard control and the pause.
namespace glonks {

// Reads the whole keyboard and does what the keys say that are down: one action, and N and P on top
// of it. Runs at each key event of fConsole.
void readKeys();

// Starts a pause, and returns when it has ended; called again from within, ends it. A pause moves
// tickBase by its length, so that game time stands still.
void togglePause();

}  // namespace glonks
