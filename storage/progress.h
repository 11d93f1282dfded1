#pragma once

// The Arcade levels that are open to the player, in "\init\6537": a line with the name and one with
// the number of the level's file, for each.
namespace glonks {

// Opens the level that the one just won names as its reward, if tLevels doesn't show it already:
// tells the player, and adds it to the file and to tLevels. A damaged file is made anew.
void awardLevel();

}  // namespace glonks
