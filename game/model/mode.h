#pragma once

#include <string>
#include <vector>

#include "base/types.h"

// What one mode of the game is. The rows of the table stand in game/modes.cpp.
namespace glonks {

// What the counters at the left of credits and notes show.
enum class Counter { none, stock, pieces };

// What a game of some modes comes to, beside what its pieces have paid.
struct Outcome {
  i16 prize = 0;             // credits
  std::string message = {};  // tells the player; empty: nothing is told
};

struct Mode {
  std::string modeTitle = {};                // name in the combo tMode
  std::string modeDescription = {};          // text for tModeDesc
  std::vector<std::string> levelItems = {};  // what tLevels shows; empty: the open Arcade levels
  std::string framePicture = {};             // name in "\images\"; empty leaves the frame as it is
  // Numbers in "\levels\": one for all games, or one for each of levelItems. Without any, a mode
  // with goals takes that of the level selected, and one without goals has no level.
  std::vector<i32> levelFiles = {};
  void (*setUp)() = nullptr;       // after the level has been read: pictures and pieces
  void (*loop)() = nullptr;        // plays one game
  Outcome (*outcome)() = nullptr;  // of the game just played, or of what was played of it
  i16 ticket = -1;  // slot of itemStock: a game takes one off, and without one isn't offered
  Counter counter = Counter::none;  // left of credits and notes; `pieces`: bTypeLeft
  Flag hasGoals = False;    // its levels have titles, rewards and goals, and one is to be selected
  Flag itemKeys = False;    // goods of the stock may be used
  Flag scoreTable = False;  // scores enter the high score table
};

// Whether something has to be selected in its list before a game.
inline bool hasChoice(const Mode& mode) { return mode.levelItems.size() != 1; }

// Set by the Play button: the mode that is played, or was played last, and the place in tLevels of
// what was selected for it, -1 for nothing.
inline Mode gameMode;
inline i16 gameItem = -1;

}  // namespace glonks
