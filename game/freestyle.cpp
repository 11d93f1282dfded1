#include "game/freestyle.h"

#include "game/gametick.h"
#include "game/model.h"
#include "game/playframe.h"
#include "game/random.h"
#include "game/text.h"
#include "present/display.h"
#include "present/fielddrawing.h"
#include "present/frogparade.h"
#include "present/ticker.h"
#include "rules/generation.h"
#include "storage/log.h"

namespace glonks {
namespace {

constexpr i32 noteChance = 2000;  // a spawn is a Music note once in so many
constexpr i32 noteDraw = 1;
constexpr i32 notesLimit = 9;           // while fewer have been collected
constexpr i32 frogBonusScore = 60000;   // the bonus starts above it
constexpr i32 frogBonusLength = 60000;  // ms
constexpr i32 paradeOvertime = 3000;    // ms for which the parade runs on after the bonus
constexpr i32 scoreX = 83;
constexpr i32 scoreY = 45;

void spawnOrNote() {
  const i32 draw = drawBelow(noteChance);
  if (draw == noteDraw && notesCollected < notesLimit) {
    spawnMusicNote();
  } else {
    spawnPiece();
  }
}

void startFrogBonus() {
  if (score <= frogBonusScore || frogBonusOn != False) return;
  frogBonusOn = True;
  pushMessage("Frog bonus!");
  frogBonusUntil = gameTick() + frogBonusLength;
}

// The order within a frame is part of the rules. An oddity that is kept: the background is laid
// after the Flip, so the first frame lies on the loading screen and the first after a pause on its
// line.
void runFrame(i32& nextFrame) {
  stepRules();
  drawMovingThings();
  backBuffer->DrawText(scoreX, scoreY, plainNumber(score), False);
  primarySurface->Flip(nullptr, flipWait);
  nextFrame = gameTick() + framePeriod;
  layPlate();
  if (frogBonusOn == True && frogBonusUntil + paradeOvertime > gameTick()) frogParade();
  layFrame();
  startFrogBonus();
}

}  // namespace

void play() {
  logStep("play - initializing variables");
  gameOver = False;
  i32 nextSpawn = gameTick() + firstSpawnDelay;
  i32 nextFrame = gameTick();
  lastKeyTick = gameTick();
  nextPointsTick = gameTick() + timePointsPeriod;
  pendingSpawns = 0;
  logStep("play - entering main loop");

  while (gameOver != True) {
    if (nextSpawn < gameTick()) {
      spawnOrNote();
      nextSpawn = gameTick() + spawnInterval;
    }
    if (nextFrame < gameTick()) runFrame(nextFrame);
    payTimePoints();
    endPass();
  }
}

}  // namespace glonks
