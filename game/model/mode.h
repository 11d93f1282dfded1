#pragma once

#include <string>
#include <vector>

#include "base/types.h"

// What one mode of the game is. The rows of the table stand in game/modes.cpp.
namespace glonks {

// What the counters at the left of credits and notes show.
enum class Counter { none, stock, pieces };

struct Mode {
  std::string modeTitle = {};                // name in the combo tMode
  std::string modeDescription = {};          // text for tModeDesc; empty: not offered
  std::vector<std::string> levelItems = {};  // what tLevels shows; empty: the open Arcade levels
  std::string framePicture = {};             // name in "\images\"; empty leaves the frame as it is
  void (*loop)() = nullptr;                  // plays one game; nullptr: can't be played yet
  i32 levelFile = 0;                         // number in "\levels\"; 0: that of the level selected
  Counter counter = Counter::none;           // left of credits and notes; `pieces`: bTypeLeft
  Flag hasGoals = False;    // its levels have titles, rewards and goals, and one is to be selected
  Flag itemKeys = False;    // goods of the stock may be used
  Flag scoreTable = False;  // scores enter the high score table
};

inline Mode gameMode;  // the mode that is played, or was played last; set by the Play button

}  // namespace glonks
