#include "shell/playbutton.h"

#include <string>
#include <utility>

#include "base/errors.h"
#include "base/text.h"
#include "game/loading/levels.h"
#include "game/loading/newgame.h"
#include "game/loading/pieces.h"
#include "game/model/gametick.h"
#include "game/model/model.h"
#include "game/modes.h"
#include "present/keys.h"
#include "present/loadingscreen.h"
#include "present/music.h"
#include "present/pause.h"
#include "present/screen/display.h"
#include "present/screen/fconsole.h"
#include "shell/menucontrols.h"
#include "shell/newgamepage.h"
#include "shell/saving.h"
#include "shell/scorespage.h"
#include "shell/storepage.h"
#include "shell/toolkit/toolkit.h"
#include "storage/files/channels.h"
#include "storage/files/scrambledfiles.h"

namespace glonks {
namespace {

// Whether the choice on page 0 makes a game; tells the player what doesn't.
bool gameChosen(const Mode& mode) {
  if (tMode.listIndex == -1) {
    messageBox("Please select a game mode.");
  } else if (mode.hasGoals == True && tLevels.listIndex == -1) {
    messageBox("Please select a level.");
  } else if (mode.loop == nullptr) {
    messageBox(mode.modeTitle + " can't be played yet.  Please select another game mode.");
  } else {
    return true;
  }
  return false;
}

// While the lines stand, what they name is done.
void loadGame(const Surface& loading) {
  showLoadingLine(loading, "Initializing variables...");
  initVariables();
  showLoadingLine(loading, "Initializing pieces...");
  loadPieces();
  showLoadingLine(loading, "Initializing music...");
  forgetFailedSongs();
  nextSong();
  showLoadingLine(loading, "Playing...");
}

std::string pathOfLevel() {
  const i32 file = gameMode.levelFile != 0
                       ? gameMode.levelFile
                       : tLevels.itemData[static_cast<std::size_t>(tLevels.listIndex)];
  return "\\levels\\" + plainNumber(file);
}

// Whether the level's file can be read; the player sees a message if not. Looked at before the
// screen is taken.
bool levelReadable() {
  return succeeds([] { ScrambledReader(pathOfLevel(), levelChannel).close(); });
}

// Gives the screen back if the level turns out to be damaged.
void loadChosenLevel() {
  // Item keys look for this name.
  modeName = gameMode.itemKeys == True ? "Freestyle" : gameMode.modeTitle;
  if (gameMode.hasGoals == True) minuteStart = gameTick();
  try {
    loadLevel(pathOfLevel(), gameMode.hasGoals);
  } catch (const RuntimeError&) {
    gameOver = True;  // so that fConsole can be closed
    destroy();
    throw;
  }
}

void playGame() {
  gameMode.loop();
  destroy();
  if (gameMode.hasGoals == True && levelWon == True) awardLevel();
  if (gameMode.scoreTable == True) enterHighScore();
}

}  // namespace

void main_BtnRun_Click() {
  const Mode chosen = modeTitled(textOf(tMode));
  if (!gameChosen(chosen)) return;
  gameMode = chosen;
  if (!levelReadable()) return;
  hideForm(fMain);
  gameOver = False;  // so that fConsole can't be closed while the game is being loaded
  fConsole_Show(readKeys, pauseByCloseBox);
  owe(storeFile);  // from now on credits and goods may change
  initDX();
  const Surface loading = loadLoadingPicture();  // lives as long as this handler
  loadGame(loading);
  if (succeeds(loadChosenLevel)) playGame();
  saveStore();
  showForm(fMain);
}

void storeAtOnce() {
  if (std::exchange(inPlay, False) == True) {
    if (gameMode.scoreTable == True) keepScore();
    if (gameMode.hasGoals == True && levelWon == True) keepLevel();
  }
  saveSilently();
}

}  // namespace glonks
