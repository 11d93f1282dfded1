#include "game/playframe.h"

#include "game/gametick.h"
#include "game/model.h"
#include "present/counters.h"
#include "present/display.h"
#include "present/effectdrawing.h"
#include "present/fielddrawing.h"
#include "present/keys.h"
#include "present/music.h"
#include "present/tickerdrawing.h"
#include "rules/falling.h"
#include "rules/generation.h"
#include "rules/timedpieces.h"
#include "shell/toolkit/toolkit.h"

namespace glonks {

void stepRules() {
  movePieces();
  if (pendingSpawns > 0) {
    // The count is taken before the first spawn: what these spawns queue themselves is lost.
    for (i16 left = pendingSpawns; left > 0; --left) spawnPiece();
    pendingSpawns = 0;
  }
  compactFalling();
  scanPieces();
}

void drawMovingThings() {
  drawField();
  drawPointer();
  drawItems();
  if (impactsUpper > -1) drawImpacts();
  if (zapsUpper > -1) drawZaps();
  if (scorePopupsUpper > -1) drawPopups();
  if (tickerUpper > -1) drawTicker();
}

void payTimePoints() {
  if (nextPointsTick >= gameTick()) return;
  nextPointsTick = gameTick() + timePointsPeriod;
  score += timePoints;
}

void endPass() {
  showSongLine();
  letMessagesThrough();
  if (dd->TestCooperativeLevel() != 0 && paused == False) togglePause();
}

}  // namespace glonks
