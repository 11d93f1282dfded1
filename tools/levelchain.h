#pragma once

#include <map>
#include <string>
#include <vector>

#include "base/types.h"

namespace glonks {

// An Arcade level among the others. Lines are those of its file.
struct ChainLevel {
  std::string title;
  i32 titleLine = 1;
  std::string reward;  // the name of the level's file that winning opens
  i32 rewardLine = 1;
  // Where the pieces with spawn entries, and the goals that are counted, occur first; see `debuts`.
  std::map<std::string, i32> uses;
  std::string asks;  // its goals without their numbers; empty if it has none
  i32 goalsLine = 1;
};
using ChainLevels = std::map<std::string, ChainLevel>;  // by the names of their files

inline const std::string avoidUse = "avoid goal";
inline const std::string landUse = "land goal";

struct ChainFault {
  std::string level;  // the name of its file
  i32 line = 1;
  std::string text;
};

// The faults of the Arcade levels as a whole: rewards have to make one chain of all of them, from
// the file `first` back to it, each chapter brings in what is new in it and nothing before, and no
// two levels have the same title or ask the same. A first level that isn't there is no fault here.
std::vector<ChainFault> checkChain(const ChainLevels& levels, const std::string& first);

}  // namespace glonks
