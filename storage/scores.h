#pragma once

#include <array>
#include <string>

#include "base/types.h"

// The table of the ten best scores of Freestyle. Its file has a line for each entry, best first:
// the points, a comma and the name.
namespace glonks {

struct HighScore {
  std::string playerName;
  i32 points = 0;
};

inline constexpr i16 highScoreCount = 10;
inline std::array<HighScore, highScoreCount> highScores;  // the best first

// Reads the table. Raises as readPlayersFile does; the table stays then.
void readScores();

// Writes the table. Raises fileAccess if it can't be written.
void writeScores();

// The place from 0 that a score takes in the table, above all that are equal; highScoreCount for
// none.
i16 placeOfScore(i32 points);

// Enters a score at its place, without a name; the entries from there on move down, and the last
// one is lost.
void insertScore(i16 place, i32 points);

// Gives the entry in a place its name, as the file can hold it.
void nameScore(i16 place, const std::string& name);

}  // namespace glonks
