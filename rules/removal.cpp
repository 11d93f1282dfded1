#include "rules/removal.h"

#include <algorithm>
#include <array>
#include <cstdlib>

#include "base/random.h"
#include "game/model/gametick.h"
#include "game/model/resources.h"
#include "present/effects/applause.h"
#include "present/effects/effects.h"
#include "present/effects/ticker.h"
#include "rules/fruit.h"
#include "rules/points.h"
#include "rules/rowshift.h"

namespace glonks {
namespace {

constexpr i16 lastSpreadColumn = 6;
constexpr std::size_t glonkVarieties = 4;  // 1 to 4

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

bool isOnBoard(i32 row, i32 column) {
  return row >= 0 && row < rowCount && column >= 0 && column < columnCount;
}

// Removes the bombable neighbours of a cell, another Bomb as a plain piece that doesn't explode.
// Returns whether Glonks of all varieties were among them.
bool blast(i16 row, i16 column) {
  std::array<bool, glonkVarieties> taken = {};
  for (i32 i = row - 1; i <= row + 1; ++i) {
    for (i32 j = column - 1; j <= column + 1; ++j) {
      if (!isOnBoard(i, j) || (i == row && j == column)) continue;
      const Cell& cell = cellAt(i, j);
      if (cell.occupied != True || cell.bombable != True) continue;
      const auto variety = static_cast<std::size_t>(cell.variety) - 1;
      if (cell.name == "Glonk" && variety < taken.size()) taken[variety] = true;
      removePiece(static_cast<i16>(i), static_cast<i16>(j));
    }
  }
  return std::all_of(taken.begin(), taken.end(), [](bool one) { return one; });
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

void explodeBomb(i16 row, i16 column) {
  const Cell& bomb = cellAt(row, column);
  removePiece(row, column);
  impactAt(bomb, False);
  // Oddity 15: with this and its removal a Bomb pays its value twice.
  popupAt(bomb, bomb.value);
  const bool fruitCocktail = blast(row, column);
  settlePieces();
  if (!fruitCocktail) return;
  pushMessage("Fruit cocktail bonus!  5000 points");
  payScore(cocktailPoints);
  fruitize();
}

}  // namespace glonks
