#include "game/loading/newgame.h"

#include "game/loading/loadresources.h"
#include "game/model/model.h"
#include "storage/files/log.h"

namespace glonks {
namespace {

void resetLevelFields() {
  rewardLevelName.clear();
  levelTitle.clear();
  rewardLevelFile = 0;
  goalPieceCount = -1;
  goalPieceName = noName;
  avoidName = noName;
  landName = noName;
  goalScore = -1;
  limitOn = False;
  avoidOn = False;
  landOn = False;
  surviveOn = False;
  limitMinutes = -1;
  limitSeconds = -1;
  avoidLeft = -1;
  landLeft = -1;
  surviveMinutes = -1;
  surviveSeconds = -1;
  minuteStart = 0;
}

}  // namespace

void initVariables() {
  logStep("initVariables - erasing old variables");
  pieceCatalog.fill(Piece{});
  fallingPieces.clear();

  logStep("initVariables - resetting counters");
  pieceCatalogUpper = -1;
  fallingPiecesUpper = -1;
  erase(impacts, impactsUpper);
  erase(scorePopups, scorePopupsUpper);
  erase(zaps, zapsUpper);
  erase(tickerLines, tickerUpper);
  erase(frogs, frogsUpper);
  score = 0;
  for (Row& row : playfield) {
    for (Cell& cell : row.cells) cell.occupied = False;
  }
  selectedRow = 0;
  frogBonusOn = False;
  pythagoreanDone = False;
  pythagoreanSum = 0;
  loadSamples();
  loadPictures();
  resetLevelFields();
}

}  // namespace glonks
