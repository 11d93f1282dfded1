#pragma once

#include <filesystem>
#include <string>

#include "base/types.h"
#include "shell/toolkit/controls.h"

// Windows, dialogs and the event loop. Handlers of controls run inside runEvents,
// letFormMessagesThrough and the dialogs; what a handler raises comes out of there.
namespace glonks {

// Makes the toolkit ready; first call of the program. Without a display, ends the program with a
// sentence on stderr and exit status 1.
void startToolkit();

// The folder of the program file itself, also if it was started by a link to it; and the one that
// the system has for what this program keeps for its user, $XDG_DATA_HOME/glonks or
// ~/.local/share/glonks (%LOCALAPPDATA%\glonks on Windows), which need not be there.
std::filesystem::path folderOfProgram();
std::filesystem::path folderOfUsersData();

// Shows a form, active and in front. For one that isn't open `load` runs first, and it comes up in
// the centre of the screen; after hideForm it comes back to its old place as it was. The form and
// its controls have to live on.
void showForm(Form& form, Handler load = nullptr);
// Hides and disables a form; it keeps what it shows.
void hideForm(Form& form);

// Runs the program by its events until endProgram, and raises what a handler has raised.
void runEvents();
void endProgram();

// Handles all events that are waiting for forms.
void letFormMessagesThrough();

// Asks the system to open an address, a web address in the player's browser. Doesn't wait, and
// reports nothing if that fails.
void openLink(const std::string& address);

// Starts a program file as a process of its own, which outlives this one, in its own folder.
// Doesn't wait. False if it can't be started.
bool startProgram(const std::string& path);

// Dialogs, in front of all the program's windows. Enter presses their first button, Escape their
// last. Events are handled while they stand, so they may raise what a handler has raised.

// A text with an OK button.
void messageBox(const std::string& text);

// A question with the buttons Yes and No: True for Yes, False for anything else.
Flag yesNoBox(const std::string& question);

// An input line, empty at first, of at most `longest` characters, with the buttons OK and Cancel.
// Returns what was typed, in Windows-1252 with "?" for characters it lacks; empty for Cancel.
std::string inputBox(const std::string& prompt, i32 longest);

}  // namespace glonks
