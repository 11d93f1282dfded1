#pragma once

// The page New Game: the choice of mode and level.
namespace glonks {

void mNew_Click();    // shows the page
void Image6_Click();  // the title page's button, to this page

// Fills `modes`, tMode and scoreModes, and selects the first item of scoreModes.
void popModes();

// Fills `modes` and tMode anew, after the stock of tickets has changed. The mode picked stays, and
// so do its levels and what is selected among them, unless it isn't offered any more.
void listModes();

// A mode was picked: shows its description and fills tLevels. For Arcade it reads the open levels;
// where that fails the player sees a message, and the list shows those that are known.
void tMode_Click();

// An item of tLevels was selected: the description of the mode gives way to the goals of an Arcade
// level. If the level's file can't be read the player sees a message, and the description.
void tLevels_Click();

// Opens the level that the one just won names as its reward, if tLevels doesn't show it already:
// stores it, so that it lasts whatever ends the program now, and congratulates the player. It stays
// open also if it can't be stored.
void awardLevel();

// Adds that level to tLevels, without a word; saves store it from now on. False if it is there
// already.
bool keepLevel();

}  // namespace glonks
