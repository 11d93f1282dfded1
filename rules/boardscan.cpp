#include "rules/boardscan.h"

#include <vector>

#include "game/model/gametick.h"
#include "game/model/resources.h"
#include "present/effects/effects.h"
#include "present/effects/ticker.h"
#include "rules/bombs.h"
#include "rules/generation.h"
#include "rules/points.h"
#include "rules/rowshift.h"
#include "rules/settling.h"
#include "rules/slamming.h"
#include "rules/timer.h"

namespace glonks {
namespace {

constexpr i32 diamondPaid = -1;  // expiry of a Diamond that has paid
constexpr i16 pythagoreanGoal = 1500;

struct ShifterTurn {
  i16 row = 0;
  i16 direction = 0;
};

// What one scan has collected for its end.
struct Collected {
  std::vector<SlammerPlace> slammers;
  i16 slammersUpper = -1;
  std::vector<ShifterTurn> shifters;
};

bool hasExpired(const Cell& cell) { return cell.expiry < gameTick(); }

void payDiamond(Cell& cell) {
  if (cell.expiry == diamondPaid) return;
  popupAt(cell, diamondPoints);
  cell.expiry = diamondPaid;
}

void addToPythagoreanSum(i32 value) {
  if (pythagoreanDone != False) return;
  pythagoreanSum = clamped<i16>(i64{pythagoreanSum} + value);
  if (pythagoreanSum < pythagoreanGoal) return;
  pythagoreanDone = True;
  pushMessage("Pythagorean Bonus!  2500 points");
  payScore(pythagoreanPoints);
}

void payCalculator(Cell& cell) {
  popupAt(cell, cell.value);
  armTimer(cell);
  (cell.value > 0 ? _calculate02 : _calculate01)->Play(0);
  addToPythagoreanSum(cell.value);
}

// A Bauble that leaves in time isn't a removal: it queues no pieces and counts for no goal.
void payBauble(Cell& cell) {
  cell.occupied = False;
  cell.alive = False;
  _bauble02->Play(0);
  popupAt(cell, baublePoints);
  settlePieces();
}

// What a piece does follows from its flags, each looked at in turn. Oddity 12: a piece that one of
// these steps has taken off the board goes through the later ones all the same, and is left out of
// the Slammers only.
void scanCell(i16 row, i16 column, Collected& collected) {
  Cell& cell = cellAt(row, column);
  if (cell.occupied != True) return;
  if (cell.isBomb == True && hasExpired(cell)) explodeBomb(row, column);
  if (cell.isDiamond == True && hasExpired(cell)) payDiamond(cell);
  if (cell.isSlammer == True && cell.occupied == True) {
    grow(collected.slammers, collected.slammersUpper) = {column, row};
  }
  if (cell.isGorgon == True && hasExpired(cell)) {
    dumpGorgon();
    armTimer(cell);
  }
  if (cell.isCalculator == True && hasExpired(cell)) payCalculator(cell);
  if (cell.isShifter == True && hasExpired(cell)) {
    collected.shifters.push_back({row, cell.direction});
    armTimer(cell);
  }
  if (cell.isBauble == True && hasExpired(cell)) payBauble(cell);
}

// Oddity 11: a Shifter that has just been slammed shifts its row this once more.
void shiftRows(const std::vector<ShifterTurn>& turns) {
  const i16 pointedAt = selectedRow;
  for (const ShifterTurn& turn : turns) {
    selectedRow = turn.row;
    shiftRow(flagOf(turn.direction == 1));
  }
  selectedRow = pointedAt;
}

}  // namespace

void scanPieces() {
  Collected collected;
  for (i16 row = 0; row < rowCount; ++row) {
    for (i16 column = 0; column < columnCount; ++column) scanCell(row, column, collected);
  }
  if (collected.slammersUpper > -1) checkSlams(collected.slammers, collected.slammersUpper);
  if (!collected.shifters.empty()) shiftRows(collected.shifters);
}

void dumpGorgon() {
  armTimer(dropNamed("Gorgon"));
  _gorgon01->Play(0);
}

}  // namespace glonks
