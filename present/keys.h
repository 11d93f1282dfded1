#pragma once

namespace glonks {

// Reads the whole keyboard and does what the keys say that are down: one action, and N and P on top
// of it. Runs at each key event of fConsole.
void readKeys();

}  // namespace glonks
