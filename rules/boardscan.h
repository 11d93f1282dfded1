#pragma once

namespace glonks {

// One look at all cells: pieces whose timers have run out act, then Slammers are paired, then
// Shifters move their rows. Runs once a frame.
void scanPieces();

// A Gorgon drops another Gorgon.
void dumpGorgon();

}  // namespace glonks
