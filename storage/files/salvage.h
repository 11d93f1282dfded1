#pragma once

#include <string>
#include <vector>

// What can still be read of a damaged scrambled file.
namespace glonks {

// Stands for each character that can't be read.
inline constexpr char unreadable = '\x1A';

// Whether the end of a scrambled file is missing: its last line has no line end. What is left of
// that line could pass for a shorter text or number.
bool isCutShort(const std::string& scrambledPath);

// The plain lines of a scrambled file. In one that is damaged, `unreadable` stands for the damaged
// groups, for control characters, which no data file has, and for what a file that is cut short has
// lost of its last line. Where groups or lines were lost or added, the lines after them are found
// again by trying the key positions around. Empty if the file is too large to be one of the game's.
// Raises fileNotFound or fileAccess.
std::vector<std::string> salvagedLines(const std::string& scrambledPath);

}  // namespace glonks
