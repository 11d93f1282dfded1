#pragma once

#include <string>
#include <vector>

#include "base/types.h"

// The Arcade levels that are open to the player, in "\init\6537": a line with the name and one with
// the number of the level's file, for each, in the order in which they were opened.
namespace glonks {

struct OpenLevel {
  std::string name;
  i32 file = 0;  // number in "\levels\"
};

// Reads the list, at least one level. A damaged file is made anew.
std::vector<OpenLevel> readOpenLevels();

// Adds one level to the file. Raises fileAccess if it can't be written; a damaged file is made
// anew.
void addOpenLevel(const OpenLevel& level);

}  // namespace glonks
