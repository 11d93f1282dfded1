#pragma once

#include <array>

#include "shell/toolkit/controls.h"

// The controls of the main window under their names, as plain data. Menulayout sets their
// bounds and handlers.
namespace glonks {

inline Form fMain;

enum Page : i16 {
  newGamePage,
  scoresPage,
  creditsPage,
  storePage,
  backgroundsPage,
  musicPage,
  bandsPage,
  titlePage,
  pageCount
};
inline std::array<Frame, pageCount> frame;

// Page 0: choice of a game.
inline Image Image7;       // background
inline ComboBox tMode;     // modes, by their titles
inline Label tModeDesc;    // description of the mode, or goals of the Arcade level, picked
inline ListBox tLevels;    // what can be chosen within the mode; item data: the level's file
inline Image main_BtnRun;  // the Play button

// Page 1: high scores.
inline Image Image8;              // background
inline ComboBox scoreModes;       // modes with a table
inline ListBox scores_freestyle;  // place, points and name

// Page 2: the people who made the game.
inline Image Image3;   // background
inline TextBox Text1;  // their names

// Page 3: the store.
inline constexpr i16 storeRows = 6;
inline Image Image4;                            // the table of goods
inline Image Image5;                            // the bank's box
inline Label tBank;                             // credits
inline std::array<Image, storeRows> purchase;   // the Buy buttons
inline std::array<Label, storeRows> tpurchase;  // the stock, not the price

// Page 4: themes.
inline Image Image1;         // background
inline ComboBox theme;       // themes, by the names of their folders
inline Image themePic;       // preview of a plate
inline HScrollBar HScroll1;  // which plate

// Page 5: music.
inline Image Image9;         // background
inline ListBox songs;        // rows "band - title", at once the names of the song files
inline HScrollBar HScroll2;  // volume

// Page 6: bands.
inline Image Image2;      // background
inline ListBox allBands;  // their names
inline Image launch;      // opens the selected band's link

// Page 7: greets the player.
inline Image Image10;  // background
inline Image Image6;   // leads to page 0

}  // namespace glonks
