#include "game/gamereset.h"

#include "game/loadresources.h"
#include "game/model.h"
#include "storage/log.h"

namespace glonks {
namespace {

template <typename Element>
void empty(std::vector<Element>& list, i16& upper) {
  list.clear();
  upper = -1;
}

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

  logStep("initVariables - resetting counters");
  pieceCatalogUpper = -1;
  empty(fallingPieces, fallingPiecesUpper);
  empty(impacts, impactsUpper);
  empty(scorePopups, scorePopupsUpper);
  empty(zaps, zapsUpper);
  empty(tickerLines, tickerUpper);
  empty(frogs, frogsUpper);
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
