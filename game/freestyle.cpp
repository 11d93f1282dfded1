#include "game/freestyle.h"

#include "base/random.h"
#include "game/model/gametick.h"
#include "game/model/model.h"
#include "game/playloop.h"
#include "present/effects/ticker.h"
#include "present/frogparade.h"
#include "present/itemdisplay.h"
#include "rules/generation.h"

namespace glonks {
namespace {

constexpr i32 noteChance = 2000;  // a spawn is a Music note once in so many
constexpr i32 noteDraw = 1;
constexpr i32 notesLimit = 9;           // while fewer have been collected
constexpr i32 frogBonusScore = 60000;   // the bonus starts above it
constexpr i32 frogBonusLength = 60000;  // ms
constexpr i32 paradeOvertime = 3000;    // ms for which the parade runs on after the bonus

void spawnOrNote() {
  const i32 draw = drawBelow(noteChance);
  if (draw == noteDraw && notesCollected < notesLimit) {
    dropNamed("Music");
  } else {
    spawnPiece();
  }
}

void showParade() {
  if (frogBonusOn == True && i64{frogBonusUntil} + paradeOvertime > gameTick()) frogParade();
}

void startFrogBonus() {
  if (score <= frogBonusScore || frogBonusOn != False) return;
  frogBonusOn = True;
  pushMessage("Frog bonus!");
  frogBonusUntil = gameTickIn(frogBonusLength);
}

}  // namespace

void play() {
  runLoop({.run = runPlainly,
           .spawn = spawnOrNote,
           .texts = {drawScore},
           .behindFrame = {showParade},
           .endOfFrame = {startFrogBonus}});
}

}  // namespace glonks
