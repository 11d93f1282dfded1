#pragma once

#include <string>
#include <vector>

#include "base/types.h"

// The Arcade levels that are open to the player. Their file has a line with the name and one with
// the number of the level's file, for each, in the order in which they were opened.
namespace glonks {

struct OpenLevel {
  std::string name;
  i32 file = 0;  // number in "\levels\"
};

inline std::vector<OpenLevel> openLevels;  // as last read, and those opened since
inline std::vector<OpenLevel> newLevels;   // those that the file doesn't have yet

// Reads the list, at least one level. Raises as readPlayersFile does; the list stays then.
void readOpenLevels();

// Adds one level to the list.
void addOpenLevel(const OpenLevel& level);

// Adds the new levels to the file. Raises as readPlayersFile and writePlayersFile do; they stay new
// then.
void writeOpenLevels();

}  // namespace glonks
