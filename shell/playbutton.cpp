#include "shell/playbutton.h"

#include <string>
#include <utility>

#include "base/errors.h"
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
#include "shell/musicpage.h"
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
  } else if (hasChoice(mode) && tLevels.listIndex == -1) {
    messageBox("Please select a level.");
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

bool hasLevel() { return gameMode.hasGoals == True || !gameMode.levelFiles.empty(); }

std::string pathOfLevel() {
  const auto& files = gameMode.hasGoals == True ? tLevels.itemData : gameMode.levelFiles;
  const i16 place = hasChoice(gameMode) ? gameItem : i16{0};
  return levelPath(files[static_cast<std::size_t>(place)]);
}

// Whether the level's file can be read; the player sees a message if not. Looked at before the
// screen is taken.
bool levelReadable() {
  return !hasLevel() || succeeds([] { ScrambledReader(pathOfLevel(), levelChannel).close(); });
}

// Gives the screen back if the level turns out to be damaged, or what the mode adds to it can't be
// loaded.
void setUpMode() {
  // Item keys look for this name.
  modeName = gameMode.itemKeys == True ? "Freestyle" : gameMode.modeTitle;
  if (gameMode.hasGoals == True) minuteStart = gameTick();
  try {
    if (hasLevel()) loadLevel(pathOfLevel(), gameMode.hasGoals);
    if (gameMode.setUp != nullptr) gameMode.setUp();
  } catch (const RuntimeError&) {
    gameOver = True;  // so that fConsole can be closed
    destroy();
    throw;
  }
}

std::string keepPrize() {
  if (gameMode.outcome == nullptr) return "";
  const Outcome outcome = gameMode.outcome();
  bank = clamped<i16>(i32{bank} + outcome.prize);
  return outcome.message;
}

// Stored before it is told, so that it lasts whatever ends the program now.
void announce(const std::string& text) {
  if (text.empty()) return;
  saveSilently();
  messageBox(text);
}

void playGame() {
  if (gameMode.ticket >= 0) --stockOf(gameMode.ticket);
  gameMode.loop();
  destroy();
  if (gameMode.hasGoals == True && levelWon == True) awardLevel();
  if (gameMode.scoreTable == True) enterHighScore();
  announce(keepPrize());
  for (const std::string& song : openBonusSongs()) {
    announce("Congratulations!  You have been awarded a bonus song:  " + song);
  }
}

}  // namespace

void main_BtnRun_Click() {
  const Mode chosen = modeTitled(textOf(tMode));
  if (!gameChosen(chosen)) return;
  gameMode = chosen;
  gameItem = tLevels.listIndex;
  if (!levelReadable()) return;
  hideForm(fMain);
  gameOver = False;  // so that fConsole can't be closed while the game is being loaded
  fConsole_Show(readKeys, pauseByCloseBox, pauseByLostPad);
  owe(storeFile);  // from now on credits and goods may change
  initDX();
  loadGame(loadLoadingPicture());
  if (succeeds(setUpMode)) playGame();
  saveStore();
  listModes();
  showForm(fMain);
}

void storeAtOnce() {
  if (std::exchange(inPlay, False) == True) {
    if (gameMode.scoreTable == True) keepScore();
    if (gameMode.hasGoals == True && levelWon == True) keepLevel();
    keepPrize();
  }
  saveSilently();
}

}  // namespace glonks
