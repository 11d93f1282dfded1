#include "game/loading/newgame.h"

#include "game/loading/levels.h"
#include "game/loading/loadresources.h"
#include "game/model/model.h"
#include "storage/files/log.h"

namespace glonks {

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
  setLevelFields(LevelHead());
  minuteStart = 0;
}

}  // namespace glonks
