#include "rules/removal.h"

#include <cstdlib>

#include "base/random.h"
#include "game/model/gametick.h"
#include "game/model/resources.h"
#include "present/effects/applause.h"
#include "present/effects/effects.h"
#include "present/effects/ticker.h"
#include "rules/points.h"

namespace glonks {
namespace {

constexpr i16 lastSpreadColumn = 6;

// Oddity 16: a Bauble that is overdue, but hasn't been scanned yet, counts for no piece goal,
// though it queues its pieces.
void countForGoals(const Cell& cell) {
  if (cell.name == avoidName) countDown(avoidLeft);
  if (cell.name != goalPieceName) return;
  if (cell.name != "Bauble" || cell.expiry > gameTick()) countDown(goalPieceCount);
}

void countBType() {
  if (bTypeLeft == 1) {
    pushMessage("victory!");
    applause();
  }
  countDown(bTypeLeft);
}

void pay(const Cell& cell) {
  if (cell.isMoney == True) {
    bank = clamped<i16>(i32{bank} + 1);
    _coin01->Play(0);
  } else if (cell.name == "Music") {
    _music01->Play(0);
    notesCollected = clamped<i32>(i64{notesCollected} + 1);
  } else {
    popupAt(cell, clamped<i32>(std::abs(i64{cell.value})));
  }
}

void knockOverByChance(i16 row, i32 column) {
  if (drawBelow(2) == 1) removePiece(row, static_cast<i16>(column));
}

// A Pin takes its neighbours below and, by chance, beside it. Oddity 13: right of column 6 nothing
// is taken on that side. Oddity 14: a neighbouring Pin may spread back to this one, which is still
// there and then falls, pays and counts twice.
void spread(i16 row, i16 column) {
  const Cell& pin = cellAt(row, column);
  impactAt(pin, False);
  if (row > 0) {
    const auto below = static_cast<i16>(row - 1);
    removePiece(below, column);
    if (column > 0) removePiece(below, static_cast<i16>(column - 1));
    if (column < lastSpreadColumn) removePiece(below, static_cast<i16>(column + 1));
  }
  if (column > 0) knockOverByChance(row, column - 1);
  if (column < lastSpreadColumn) knockOverByChance(row, column + 1);
}

}  // namespace

void removePiece(i16 row, i16 column) {
  Cell& cell = cellAt(row, column);
  if (cell.occupied != True) return;
  countForGoals(cell);
  if (cell.isGorgon == True) _gorgon02->Play(0);
  if (cell.isBauble == True) {
    _bauble01->Play(0);
    pendingSpawns = clamped<i16>(i32{pendingSpawns} + baubleSpawns);
  }
  if (cell.name == "BType") countBType();
  pay(cell);
  if (cell.isPin == True) spread(row, column);
  cell.occupied = False;
  cell.name.clear();
}

}  // namespace glonks
