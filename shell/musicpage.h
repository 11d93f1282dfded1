#pragma once

#include <string>
#include <vector>

#include "base/types.h"

// The page Music: the songs of the game, and how loud they are.
namespace glonks {

void mMusic_Click();  // shows the page

// Fills the list `songs`, and songNames with its rows: the four of every player, and behind them
// the Bonus Songs that are open. A row is what the player reads, and the name of the file in
// "\music\".
void popSongs();

inline constexpr i32 bonusSongCount = 3;

// How many Bonus Songs are open: those bought, and one for each three notes collected.
i32 openBonusSongCount();

// Adds the Bonus Songs that have been opened since the list was last filled, and returns them.
std::vector<std::string> openBonusSongs();

// The volume's bar has moved: the next song plays as loud.
void HScroll2_Change();
void HScroll2_Scroll();

}  // namespace glonks
