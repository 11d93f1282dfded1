#include "tests/headless/headlessgame.h"

#include <algorithm>
#include <filesystem>
#include <memory>

#include "base/clock.h"
#include "base/paths.h"
#include "base/random.h"
#include "game/loading/levels.h"
#include "game/loading/newgame.h"
#include "game/loading/pieces.h"
#include "game/model/gametick.h"
#include "game/model/model.h"
#include "present/keys.h"
#include "present/pause.h"
#include "present/screen/display.h"
#include "present/screen/fconsole.h"
#include "storage/files/scrambledfiles.h"
#include "storage/progress.h"
#include "tests/fakes/clock.h"
#include "tests/fakes/random.h"
#include "tests/fakes/sound.h"
#include "tests/fakes/toolkit.h"
#include "tests/fakes/window.h"

namespace glonks {
namespace {

constexpr i32 longest = 1'800'000;    // ms
constexpr i32 seedsOfAGame = 10'000;  // more than any game takes

Ending endingOf(bool brokenOff) {
  if (levelWon == True) return Ending::won;
  if (levelOver == True) {
    return avoidOn == True && avoidLeft < 1 ? Ending::avoidGoal : Ending::timeExpired;
  }
  return brokenOff ? Ending::brokenOff : Ending::fullColumn;
}

void load(const HeadlessGame& game) {
  fake::useGenerator();
  fake::resetClock();
  fake::nextSeed = game.seed * seedsOfAGame;
  fake::resetSound();
  gameMode = game.mode;
  gameItem = game.item;
  notesCollected = 0;
  bank = 0;
  levelOver = False;
  levelWon = False;
  initVariables();
  loadPieces();
  // Modes without spawns take all their draws from the generator as it stands.
  rtcRandomize(clockSeed());
  minuteStart = gameTick();
  if (game.level != 0) loadLevel(levelPath(game.level), game.mode.hasGoals);
  if (game.mode.setUp != nullptr) game.mode.setUp();
}

}  // namespace

void setUpHeadless(const std::filesystem::path& gameFolder) {
  setProgramFolder(std::filesystem::absolute(gameFolder));
  fake::useGenerator();
  makeKeys(keySeed, keyDrawArgument, keyScale);
  fConsole_Show(readKeys, pauseByCloseBox);
  initDX();
  songNames.clear();
  // Popups, goals and ticker live by being drawn; on one pixel that costs next to nothing.
  backBuffer = std::make_shared<DirectDrawSurface7>(1, 1);
  backBuffer->SetFont(gameFont);
}

std::vector<i32> arcadeChain() {
  readOpenLevels();
  std::vector<i32> chain;
  for (i32 level = openLevels.at(0).file;
       std::find(chain.begin(), chain.end(), level) == chain.end();) {
    chain.push_back(level);
    level = readLevelHead(levelPath(level)).rewardFile;
  }
  return chain;
}

HeadlessResult playHeadless(const HeadlessGame& game, const KeyChoice& nextKey) {
  load(game);
  HeadlessResult result;
  bool brokenOff = false;
  const i32 start = gameTick();
  fake::messages = [&] {
    fake::clockNow += headlessFrameTime;
    fake::sounds.clear();  // nobody listens
    const i32 time = gameTick() - start;
    if (const i32 code = nextKey(time)) {
      result.keys.push_back({time, code});
      fake::pressKeys({code});
    }
    if (time <= longest) return;
    brokenOff = true;
    gameOver = True;
  };
  game.mode.loop();
  result.length = gameTick() - start;
  result.ending = endingOf(brokenOff);
  return result;
}

KeyChoice replayOf(const std::vector<PressedKey>& keys) {
  return [&keys, next = std::size_t{0}](i32 time) mutable {
    if (next == keys.size() || keys[next].time > time) return 0;
    return keys[next++].code;
  };
}

}  // namespace glonks
