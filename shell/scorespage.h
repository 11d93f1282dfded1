#pragma once

// The page High Scores: the table of Freestyle.
namespace glonks {

void mScores_Click();  // shows the page

void scoreModes_Click();  // shows the list of scores of the mode picked

// Reads the table and rebuilds the list on the page. Raises as readScores does.
void loadScores();

// Stores the table. A failure raises nothing (see shell/saving.h).
void saveScores();

// If `score` enters the table: stores the entry without a name, so that it lasts whatever ends the
// program now, asks for the name, stores that too and brings up the page. The entry stays in table
// and list also if it can't be stored.
void enterHighScore();

// Enters `score` into the table, without a name and without a word; saves store it from now on.
void keepScore();

}  // namespace glonks
