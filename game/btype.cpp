#include "game/btype.h"

#include <array>

#include "base/random.h"
#include "base/text.h"
#include "game/loading/pieces.h"
#include "game/model/model.h"
#include "game/playloop.h"
#include "present/itemdisplay.h"
#include "rules/falling.h"
#include "rules/generation.h"
#include "rules/placing.h"

namespace glonks {
namespace {

struct Grade {
  i16 pieces;   // at the start
  i16 tallest;  // rows that a column may begin with
  i16 prize;    // credits
};
constexpr std::array<Grade, 3> grades = {{{12, 3, 3}, {20, 4, 6}, {30, 5, 12}}};

constexpr i16 freeColumns = 2;

const Grade& gradePlayed() { return grades.at(static_cast<std::size_t>(gameItem)); }

i16 drawColumn() { return static_cast<i16>(drawBelow(columnCount)); }

std::array<bool, columnCount> drawFreeColumns() {
  std::array<bool, columnCount> free = {};
  for (i16 left = freeColumns; left > 0;) {
    bool& column = free.at(static_cast<std::size_t>(drawColumn()));
    if (!column) --left;
    column = true;
  }
  return free;
}

void layPieces(const Grade& grade) {
  const auto free = drawFreeColumns();
  for (i16 left = grade.pieces; left > 0;) {
    const i16 column = drawColumn();
    const i16 row = firstFreeRow(column);
    if (free.at(static_cast<std::size_t>(column)) || row == grade.tallest) continue;
    placeAtRest("BType", row, column);
    --left;
  }
}

// The removal of the last piece has already told so on the ticker.
void testOutcome() {
  if (endOnceDecided() || bTypeLeft > 0) return;
  levelOver = True;
  levelWon = True;
}

}  // namespace

void setUpBType() {
  loadPictureOf("BType", "btype");
  levelOver = False;
  levelWon = False;
  layPieces(gradePlayed());
  bTypeLeft = gradePlayed().pieces;
}

void playBType() {
  runLoop(
      {.run = runPlainly, .spawn = spawnPiece, .texts = {drawScore}, .endOfFrame = {testOutcome}});
}

Outcome bTypeOutcome() {
  if (levelWon != True) return {};
  const i16 prize = gradePlayed().prize;
  return {prize, "Congratulations!  You have eliminated all the pieces and won " +
                     plainNumber(prize) + " credits!"};
}

}  // namespace glonks
