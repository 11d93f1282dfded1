#pragma once

#include <filesystem>
#include <string>

#include "game/types.h"
#include "shell/toolkit/controls.h"

// Windows, dialogs and the event loop. Handlers of controls run inside runEvents or
// letMessagesThrough; what a handler raises comes out of there.
namespace glonks {

// Makes the toolkit ready; first call of the program. The program's folder is that of the program
// file.
void startToolkit(int argc, char** argv);
std::filesystem::path folderOfProgram();

// Holds the folder for this run of the program alone. What hinders it, if anything:
enum class FolderHold { held, otherRun, notWritable };
FolderHold holdFolder(const std::filesystem::path& folder);

// Loads a form, if it isn't, and shows it: in the centre of the screen the first time, at its old
// place after hideForm, active and in front. The form and its controls have to live on.
void showForm(Form& form);
// Puts a form out of use and out of sight; it keeps what it shows.
void hideForm(Form& form);

// Runs the program by its events until endProgram, and raises what a handler has raised.
void runEvents();
void endProgram();

// Handles all events that are waiting, those of the game's window too, and may wait up to a
// millisecond for the next one.
void letMessagesThrough();

// Dialogs, in front of all the program's windows. Enter presses their first button, Escape their
// last.

// A text with an OK button.
void messageBox(const std::string& text);

// A question with the buttons Yes and No: True for Yes, False for anything else.
Flag yesNoBox(const std::string& question);

// A line to type, at first empty, of at most `longest` characters, with the buttons OK and Cancel.
// Gives what was typed, in Windows-1252 with "?" for what that set lacks; empty for Cancel.
std::string inputBox(const std::string& prompt, i32 longest);

}  // namespace glonks
