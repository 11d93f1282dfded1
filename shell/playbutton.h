#pragma once

namespace glonks {

// The Play button: runs a whole game of the mode chosen on page 0, from taking the screen to
// storing the results, and returns when it has ended. Without a choice it only says what is
// missing, and so it does for a level whose file can't be read or is damaged.
void main_BtnRun_Click();

// Stores what the player has when the run has to end, and asks nothing: in the middle of a game the
// score as it stands, without a name, a level that has been won, and a prize.
void storeAtOnce();

}  // namespace glonks
