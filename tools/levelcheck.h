#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "base/types.h"

namespace glonks {

// What is wrong with a plain data file, and the line, counted from 1, where it shows.
struct LevelFault {
  std::filesystem::path file;
  i32 line = 0;
  std::string text;
};

// All faults of the level files, each by itself and as a chain, and of the list of the first open
// levels in the folder of the plain data files, and of the piece files as far as levels depend on
// them. A goal that can't be reached, or can't be failed, is a fault too, and so is what can't be
// read; only a folder that isn't there raises std::filesystem::filesystem_error. Reads on channel
// 5.
std::vector<LevelFault> checkLevels(const std::filesystem::path& data);

}  // namespace glonks
