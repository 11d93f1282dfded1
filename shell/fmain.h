#pragma once

#include "game/types.h"
#include "shell/toolkit/controls.h"

// Form fMain: the main window with its menu bar and eight pages, of which one is on show.
namespace glonks {

inline Form fMain;

// Start: opens the log, seeds the random generator, fills the lists and shows the title page. Needs
// the key tables of the scrambled files.
void fMain_Form_Load();

// Fills all lists from their files. The store has to be read before the themes, which select the
// stored one.
void boot();

// Hides and disables all pages, and shows and enables one.
void showPage(i16 page);

// Closing by the window's close box: stores everything, closes the log and ends the program.
void fMain_Form_Unload();

void mNew_Click();          // page 0, choice of a game
void mExit_Click();         // ends the program at once, storing nothing
void mStore_Click();        // page 3, with fresh numbers
void mBackgrounds_Click();  // page 4
void mMusic_Click();        // page 5
void mScores_Click();       // page 1
void mBands_Click();        // page 6
void mCredits_Click();      // page 2

// The windows beside this one, which stays in use; and the manual, a program of its own.
void mAbout_Click();
void mManual_Click();
void mPieces_Click();
void mControls_Click();

void Image6_Click();      // the title page's button, to page 0
void scoreModes_Click();  // shows the list of scores of the mode picked

}  // namespace glonks
