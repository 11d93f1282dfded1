#include "bench/headlessgame.h"

#include <filesystem>

#include "base/clock.h"
#include "base/paths.h"
#include "base/random.h"
#include "base/text.h"
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
#include "tests/fakes/clock.h"
#include "tests/fakes/random.h"
#include "tests/fakes/sound.h"
#include "tests/fakes/toolkit.h"
#include "tests/fakes/window.h"

namespace glonks {
namespace {

constexpr u32 frameTime = 26;       // ms
constexpr i32 longest = 1'800'000;  // ms

bool brokenOff = false;

}  // namespace

void pressNextKey(Plan& plan) {
  if (plan.steps == 0) return;
  if (plan.row != selectedRow) {
    fake::pressKeys({plan.row > selectedRow ? keyUp : keyDown});
  } else {
    fake::pressKeys({plan.steps > 0 ? keyRight : keyLeft});
    plan.steps += plan.steps > 0 ? -1 : 1;
  }
}

void setUpHeadless(const std::string& gameFolder) {
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

i32 playHeadless(const Mode& mode, i32 level, i16 item, i32 seed,
                 const std::function<void()>& player) {
  fake::useGenerator();
  fake::resetClock();
  fake::nextSeed = seed * 10'000;
  fake::resetSound();
  gameMode = mode;
  gameItem = item;
  initVariables();
  loadPieces();
  // Modes without spawns take all their draws from the generator as it stands.
  rtcRandomize(clockSeed());
  const i32 start = gameTick();
  minuteStart = start;
  if (level != 0) loadLevel("\\levels\\" + plainNumber(level), mode.hasGoals);
  if (mode.setUp != nullptr) mode.setUp();
  brokenOff = false;
  fake::messages = [&] {
    fake::clockNow += frameTime;
    player();
    if (gameTick() <= start + longest) return;
    brokenOff = true;
    gameOver = True;
  };
  mode.loop();
  return gameTick() - start;
}

bool wasBrokenOff() { return brokenOff; }

}  // namespace glonks
