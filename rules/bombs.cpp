#include "rules/bombs.h"

#include <algorithm>
#include <array>

#include "game/model/model.h"
#include "present/effects/effects.h"
#include "present/effects/ticker.h"
#include "rules/fruit.h"
#include "rules/points.h"
#include "rules/removal.h"
#include "rules/settling.h"

namespace glonks {
namespace {

constexpr std::size_t glonkVarieties = 4;  // 1 to 4

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
