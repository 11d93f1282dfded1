#pragma once

// The page High Scores: the table of Freestyle.
namespace glonks {

void mScores_Click();  // shows the page

void scoreModes_Click();  // shows the list of scores of the mode picked

// Reads the table and rebuilds the list on the page. Raises as readScores does.
void loadScores();

// Stores the table. A failure raises nothing (see shell/saving.h).
void saveScores();

// If `score` enters the table: asks for a name, stores the entry and brings up the page. The entry
// stays in table and list also if it can't be stored.
void enterHighScore();

}  // namespace glonks
