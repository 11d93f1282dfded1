#pragma once

namespace glonks {

// Reads the whole keyboard and does what the keys say that are down: one action, and N and P on top
// of it; or asks whether the game is to end, for a gamepad's Back. Runs at each key event of
// fConsole. Raises badFile if the piece of an item's key isn't in the catalogue.
void readKeys();

}  // namespace glonks
