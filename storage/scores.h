#pragma once

#include <array>
#include <string>

#include "game/types.h"

// The table of the ten best scores of Freestyle, in "\init\6095" and on the page High Scores. The
// file has a line for each entry, best first: the points, a comma and the name.
namespace glonks {

struct HighScore {
  std::string playerName;
  i32 points = 0;
};

inline constexpr i16 highScoreCount = 10;
inline std::array<HighScore, highScoreCount> highScores;  // the best first

// Reads the table and rebuilds the list on the page. A damaged file is made anew.
void loadScores();

// Writes the table. Raises fileAccess if the player gives up a write that fails.
void saveScores();

// If `score` enters the table: asks for a name, stores the entry and brings up the page.
void enterHighScore();

}  // namespace glonks
