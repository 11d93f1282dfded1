#pragma once

#include "game/types.h"
#include "shell/toolkit/controls.h"

// Form fMain: the main window with its menu bar and pages.
namespace glonks {

inline Form fMain;

// Start: opens the log, seeds the random generator, fills the lists and shows the first page. Needs
// the key tables of the scrambled files.
void fMain_Form_Load();

// Fills all lists from their files.
void boot();

// Hides and disables all pages, and shows and enables one.
void showPage(i16 page);

// Closing by the window's close box: stores everything, closes the log and ends the program.
void fMain_Form_Unload();

void mNew_Click();   // page 0
void mExit_Click();  // ends the program at once, storing nothing

}  // namespace glonks
