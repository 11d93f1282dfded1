#include <exception>
#include <string>

#include "base/errors.h"
#include "base/paths.h"
#include "base/text.h"
#include "game/model/model.h"
#include "present/screen/display.h"
#include "present/screen/fconsole.h"
#include "shell/ftip.h"
#include "shell/playbutton.h"
#include "shell/toolkit/endsignals.h"
#include "shell/toolkit/folderlock.h"
#include "shell/toolkit/toolkit.h"
#include "storage/files/log.h"

namespace {

using namespace glonks;

// Whether this run may use the program's folder; tells the player if not.
bool holdProgramFolder() {
  switch (holdFolder(programFolder())) {
    case FolderHold::held:
      return true;
    case FolderHold::otherRun:
      messageBox("Glonks is already running.");
      return false;
    case FolderHold::notWritable:
      break;
  }
  messageBox("Glonks can't write to its folder, so it could keep no scores:\n\n" +
             fromUtf8(programFolder().string()) +
             "\n\nPlease move it to a folder of your own and start it there.");
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
    setProgramFolder(folderOfProgram());
    if (!holdProgramFolder()) return 1;
    setEndHandler(endByTheSystem);
    fTip_Form_Load();
    showForm(fTip);
    runEvents();
    return 0;
  } catch (const RuntimeError& error) {
    endFailedRun(error, error.what());
  } catch (const std::exception& error) {
    endFailedRun(error, std::string("Glonks has to end: ") + error.what());
  }
  return 1;
}
