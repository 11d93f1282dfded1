#include "game/playloop.h"

#include <algorithm>

#include "game/model/gametick.h"
#include "game/model/model.h"
#include "present/effectdrawing.h"
#include "present/endquestion.h"
#include "present/fielddrawing.h"
#include "present/itemdisplay.h"
#include "present/music.h"
#include "present/pause.h"
#include "present/screen/display.h"
#include "present/screen/messages.h"
#include "present/tickerdrawing.h"
#include "rules/boardscan.h"
#include "rules/falling.h"
#include "rules/generation.h"
#include "rules/points.h"
#include "storage/files/log.h"

namespace glonks {
namespace {

constexpr i32 firstSpawnDelay = 500;  // ms after the start of the loop

// When the pass has something to do again: as the times above, a game tick that has to be passed.
i32 nextDue = 0;

// fruitize gives the screen back in the middle of a frame when a picture can't be loaded. What is
// left of the pass keeps away from it.
bool isScreenGone() { return !dd; }

void runAll(const std::vector<Statement>& statements, Runner run) {
  for (const Statement statement : statements) run(statement);
}

// The order within a frame is part of the rules. Oddity 6: the background is laid after the Flip,
// so the first frame lies on the loading screen and the first after a pause on its line.
void runFrame(const LoopMode& mode, i32& nextFrame) {
  stepRules(mode.run);
  if (isScreenGone()) return;
  drawMovingThings(mode.run);
  runAll(mode.texts, mode.run);
  mode.run([] { primarySurface->Flip(nullptr, flipWait); });
  nextFrame = gameTickIn(framePeriod);
  mode.run(clearBack);
  mode.run(layPlate);
  runAll(mode.behindFrame, mode.run);
  mode.run(layFrame);
  runAll(mode.endOfFrame, mode.run);
}

// Counted from now: what is late isn't made up for.
void payTimePoints() {
  if (nextPointsTick >= gameTick()) return;
  nextPointsTick = gameTickIn(timePointsPeriod);
  payScore(timePoints);
}

// A pass's last steps: the song's title and end, whether the game is to end, the system's messages
// until something is due again, the pause when the game has lost the screen.
void endPass(Runner run) {
  if (isScreenGone()) return;
  run(showSongLine);
  run(showEndQuestion);
  run([] { letMessagesThrough(static_cast<u32>(nextDue) + 1 + tickBase); });
  run([] {
    if (dd->TestCooperativeLevel() != 0 && paused == False) togglePause();
  });
}

}  // namespace

void runPlainly(Statement statement) { statement(); }

bool endOnceDecided() {
  if (levelOver == True && tickerUpper < 0) gameOver = True;
  return levelOver == True;
}

void stepRules(Runner run) {
  run(movePieces);
  if (pendingSpawns > 0) {
    // Oddity 5: the count is taken before the first spawn, and what these spawns queue themselves
    // is lost.
    for (i16 left = pendingSpawns; left > 0; --left) run(spawnPiece);
    pendingSpawns = 0;
  }
  run(compactFalling);
  run(scanPieces);
}

void drawMovingThings(Runner run) {
  run(drawField);
  run(drawPointer);
  run(drawItems);
  if (impactsUpper > -1) run(drawImpacts);
  if (zapsUpper > -1) run(drawZaps);
  if (scorePopupsUpper > -1) run(drawPopups);
  if (tickerUpper > -1) run(drawTicker);
}

void runLoop(const LoopMode& mode) {
  logStep("play - initializing variables");
  gameOver = False;
  runAll(mode.start, mode.run);
  i32 nextSpawn = gameTickIn(firstSpawnDelay);
  i32 nextFrame = gameTick();
  lastKeyTick = gameTick();
  endAskedUntil = 0;
  nextPointsTick = gameTickIn(timePointsPeriod);
  pendingSpawns = 0;
  logStep("play - entering main loop");

  inPlay = True;
  while (gameOver != True) {
    if (nextSpawn < gameTick()) {
      mode.run(mode.spawn);
      nextSpawn = gameTickIn(spawnInterval);
    }
    if (nextFrame < gameTick()) runFrame(mode, nextFrame);
    payTimePoints();
    nextDue = std::min({nextFrame, nextSpawn, nextPointsTick, gameTickIn(framePeriod)});
    endPass(mode.run);
  }
  inPlay = False;
}

}  // namespace glonks
