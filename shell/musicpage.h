#pragma once

// The page Music: the songs of the game, and how loud they are.
namespace glonks {

void mMusic_Click();  // shows the page

// Fills the list `songs`, and songNames with its rows. A row is what the player reads, and the name
// of the file in "\music\".
void popSongs();

// The volume's bar has moved: the next song plays as loud.
void HScroll2_Change();
void HScroll2_Scroll();

}  // namespace glonks
