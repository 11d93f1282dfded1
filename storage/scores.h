#pragma once

// The table of the ten best scores of Freestyle.
namespace glonks {

// Reads the table from "\init\6095" and rebuilds the list on the page High Scores.
void loadScores();

// Writes the table.
void saveScores();

// Asks for a name if `score` enters the table, and stores it.
void enterHighScore();

}  // namespace glonks
