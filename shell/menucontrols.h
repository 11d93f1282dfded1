#pragma once

#include <array>

#include "shell/toolkit/controls.h"

// The controls of the main window under their names, as plain data that all modules may read. The
// window's own module gives them their places and handlers.
namespace glonks {

inline constexpr i16 pageCount = 8;
inline std::array<Frame, pageCount> frame;

// Page 0: choice of a game.
inline Image Image7;       // background
inline ComboBox tMode;     // modes, by their titles
inline Label tModeDesc;    // description of the mode picked
inline ListBox tLevels;    // what can be chosen within the mode; item data: the level's file
inline Image main_BtnRun;  // the Play button

// Page 1: high scores.
inline ComboBox scoreModes;  // modes with a table

// Page 5: music.
inline ListBox songs;  // rows "band - title", at once the names of the song files

}  // namespace glonks
