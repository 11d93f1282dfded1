#include "shell/playbutton.h"

#include "game/arcade.h"
#include "game/freestyle.h"
#include "game/gamereset.h"
#include "game/gametick.h"
#include "game/levels.h"
#include "game/model.h"
#include "game/pieces.h"
#include "game/text.h"
#include "present/console.h"
#include "present/display.h"
#include "present/keys.h"
#include "present/loadingscreen.h"
#include "present/music.h"
#include "shell/fmain.h"
#include "shell/menucontrols.h"
#include "shell/toolkit/toolkit.h"
#include "storage/progress.h"
#include "storage/scores.h"
#include "storage/store.h"

namespace glonks {
namespace {

// Whether the choice on page 0 makes a game; tells the player what doesn't.
bool gameChosen(const std::string& mode) {
  if (tMode.listIndex == -1) {
    messageBox("Please select a game mode.");
  } else if (mode == "Arcade" && tLevels.listIndex == -1) {
    messageBox("Please select a level.");
  } else if (mode != "Arcade" && mode != "Freestyle") {
    messageBox(mode + " can't be played yet.  Please select another game mode.");
  } else {
    return true;
  }
  return false;
}

void loadGame() {
  initDX();
  const Surface loading = loadLoadingPicture();
  showLoadingLine(loading, "Initializing variables...");
  initVariables();
  showLoadingLine(loading, "Initializing pieces...");
  loadPieces();
  showLoadingLine(loading, "Initializing music...");
  forgetFailedSongs();
  nextSong();
  showLoadingLine(loading, "Playing...");
}

void runArcade() {
  modeName = "Freestyle";  // so that the item keys work here too
  minuteStart = gameTick();
  const i32 file = tLevels.itemData[static_cast<std::size_t>(tLevels.listIndex)];
  loadLevel("\\levels\\" + plainNumber(file), True);
  playArcade();
  destroy();
  if (levelWon == True) awardLevel();
}

void runFreestyle() {
  modeName = "Freestyle";
  loadLevel("\\levels\\2193", False);
  play();
  destroy();
  enterHighScore();
}

}  // namespace

void main_BtnRun_Click() {
  const std::string mode = textOf(tMode);
  if (!gameChosen(mode)) return;
  hideForm(fMain);
  gameOver = False;  // so that fConsole can't be closed while the game is being loaded
  fConsole_Show(readKeys);
  loadGame();
  if (mode == "Arcade") runArcade();
  if (mode == "Freestyle") runFreestyle();
  saveStore();
  showForm(fMain);
}

}  // namespace glonks
