#pragma once

#include "base/types.h"

// What a player keeps between games: credits, goods, notes, theme and volume. Their file has 13
// lines, a value each.
namespace glonks {

// Kept for the file's sake: read and written back, and used by nothing.
inline Flag storeFlagA = False;
inline Flag storeFlagB = False;
inline Flag storeFlagC = False;

// Reads the file into its variables. A value out of range is brought to the nearest allowed one.
// Raises as readPlayersFile does; the variables stay then.
void readStore();

// Writes the file. Raises fileAccess if it can't be written.
void writeStore();

}  // namespace glonks
