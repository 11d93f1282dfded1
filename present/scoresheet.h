#pragma once

namespace glonks {

// Writes the game of bowlingRolls into the score sheet of the frame picture: for each of the ten
// frames the marks of its balls, and below them the points up to there.
void drawScoreSheet();

}  // namespace glonks
