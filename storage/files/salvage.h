#pragma once

#include <string>
#include <vector>

// What can still be read of a damaged scrambled file.
namespace glonks {

// In the place of each character that can't be read.
inline constexpr char unreadable = '\x1A';

// The plain lines of a scrambled file. In one that is damaged, `unreadable` stands for the damaged
// groups and for control characters, which no data file has. Where groups or lines are lost or have
// come in, the lines after them are found again by trying the key positions around. Empty if the
// file is too large to be one of the game's. Raises fileNotFound or fileAccess.
std::vector<std::string> salvagedLines(const std::string& scrambledPath);

}  // namespace glonks
