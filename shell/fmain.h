#pragma once

// Form fMain: the main window with its menu bar and eight pages, of which one is on show.
namespace glonks {

// Start: opens the log, seeds the random generator, fills the lists and shows the title page. Needs
// the key tables of the scrambled files.
void fMain_Form_Load();

// Fills all lists from their files. The store has to be read before the themes, which select the
// stored one. Raises what readPlayersFile raises: nothing is touched then, and the program ends.
void boot();

// Closing by the window's close box: stores what can be stored, closes the log and ends the
// program.
void fMain_Form_Unload();

// Ends the program at once. Only what an earlier save couldn't store is tried again.
void mExit_Click();

// The windows beside this one, which stays in use; and the manual, a program of its own.
void mAbout_Click();
void mManual_Click();
void mPieces_Click();
void mControls_Click();

}  // namespace glonks
