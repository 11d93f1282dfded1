#include <exception>
#include <filesystem>
#include <string>
#include <system_error>

#include "base/errors.h"
#include "base/paths.h"
#include "base/text.h"
#include "game/model/model.h"
#include "present/screen/display.h"
#include "present/screen/fconsole.h"
#include "shell/ftip.h"
#include "shell/padmenu.h"
#include "shell/playbutton.h"
#include "shell/toolkit/endsignals.h"
#include "shell/toolkit/folderlock.h"
#include "shell/toolkit/toolkit.h"
#include "storage/files/log.h"
#include "storage/folders.h"

namespace {

using namespace glonks;

// Settles where the game's files and the player's lie. Whether this run may use the player's; tells
// the player if not.
bool takeFolders() {
  setFolders(folderOfProgram(), folderOfUsersData(), canWriteTo);
  std::error_code seenWhenHeld;
  std::filesystem::create_directories(playersFolder(), seenWhenHeld);
  switch (holdFolder(playersFolder())) {
    case FolderHold::held:
      makeFirstFiles();
      return true;
    case FolderHold::otherRun:
      messageBox("Glonks is already running.");
      return false;
    case FolderHold::notWritable:
      break;
  }
  messageBox("Glonks can't write to this folder, so it could keep no scores:\n\n" +
             fromUtf8(playersFolder().string()) +
             "\n\nPlease see to it that you may write there, and start Glonks again.");
  return false;
}

// Logged in the place of the last lines of a run that ends by itself.
void endByTheSystem() {
  logStep("ended by the system");
  storeAtOnce();
  closeLog();
}

// The end of a run that failed: one line in the log, what the player has earned stored, the screen
// given back, one message.
void endFailedRun(const std::exception& error, const std::string& shown) {
  logStep("error " + numberAndText(error));
  storeAtOnce();
  if (fConsole.hWnd != 0) {
    gameOver = True;
    destroy();
  }
  closeLog();
  try {
    messageBox(shown);
  } catch (const std::exception&) {
    // Nothing is left that could show or log it.
  }
}

}  // namespace

int main() {
  try {
    startToolkit();
    if (!takeFolders()) return 1;
    setEndHandler(endByTheSystem);
    fTip_Form_Load();
    showForm(fTip);
    startPadMenu();
    runEvents();
    return 0;
  } catch (const RuntimeError& error) {
    endFailedRun(error, error.what());
  } catch (const std::exception& error) {
    endFailedRun(error, std::string("Glonks has to end: ") + error.what());
  }
  return 1;
}
