#pragma once

// The page High Scores: the table of Freestyle.
namespace glonks {

void mScores_Click();  // shows the page

void scoreModes_Click();  // shows the list of scores of the mode picked

// Reads the table and rebuilds the list on the page.
void loadScores();

// Stores the table. Raises fileAccess if the player gives up a write that fails.
void saveScores();

// If `score` enters the table: asks for a name, stores the entry and brings up the page.
void enterHighScore();

}  // namespace glonks
