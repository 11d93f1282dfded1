#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <exception>
#include <iomanip>
#include <iostream>
#include <string>
#include <vector>

#include "game/model/gametick.h"
#include "game/model/model.h"
#include "game/modes.h"
#include "player/player.h"
#include "rules/bowlingscore.h"
#include "rules/lane.h"
#include "tests/headless/headlessgame.h"

// Whether Midnight Bowling rewards skill: the points of a player who never presses a key, and of
// one who slides rows for the ball that is coming, at several speeds.
// bench_bowling <game folder> [games]
namespace {

using namespace glonks;

using Pins = std::array<std::array<bool, columnCount>, rowCount>;  // those at rest

Pins pinsInView() {
  Pins pins = {};
  for (i32 row = 0; row < rowCount; ++row) {
    for (i32 column = 0; column < columnCount; ++column) {
      pins[row][column] = cellAt(row, column).occupied == True;
    }
  }
  return pins;
}

bool isSettling() {
  return std::any_of(fallingPieces.begin(), fallingPieces.end(),
                     [](const Piece& piece) { return piece.isPin == True; });
}

void turn(Pins& pins, i32 row, i32 direction) {
  auto& cells = pins[row];
  std::rotate(cells.begin(), direction > 0 ? cells.end() - 1 : cells.begin() + 1, cells.end());
  for (i32 column = 0; column < columnCount; ++column) {
    i32 height = 0;
    for (i32 r = 0; r < rowCount; ++r) {
      if (!pins[r][column]) continue;
      pins[r][column] = false;
      pins[height++][column] = true;
    }
  }
}

// Chances that a Pin goes: those that surely go count 1, neighbours at the side a half.
void knock(const Pins& pins, std::array<std::array<double, columnCount>, rowCount>& chances,
           i32 row, i32 column, double chance) {
  if (!pins[row][column] || chances[row][column] >= chance) return;
  chances[row][column] = chance;
  if (row > 0) {
    knock(pins, chances, row - 1, column, chance);
    if (column > 0) knock(pins, chances, row - 1, column - 1, chance);
    if (column < 6) knock(pins, chances, row - 1, column + 1, chance);
  }
  if (column > 0) knock(pins, chances, row, column - 1, chance / 2);
  if (column < 6) knock(pins, chances, row, column + 1, chance / 2);
}

double expectedFall(const Pins& pins, i32 column) {
  i32 top = rowCount - 1;
  while (top >= 0 && !pins[top][column]) --top;
  if (top < 0) return 0;
  std::array<std::array<double, columnCount>, rowCount> chances = {};
  knock(pins, chances, top, column, 1);
  double fall = 0;
  for (const auto& row : chances) {
    for (const double chance : row) fall += chance;
  }
  return fall;
}

struct Prospect {
  Plan plan;
  double fall = 0;  // Pins, less the cost of keys
};

// The best turn of one row, with up to `more` turns of other rows after it, for a ball in a column.
Prospect bestTurn(const Pins& pins, i32 column, i32 pointer, i32 keysLeft, i32 more) {
  constexpr double keyCost = 0.05;
  Prospect best{{pointer, 0}, expectedFall(pins, column)};
  for (i32 row = 0; row < 4; ++row) {
    const i32 way = std::abs(row - pointer);
    for (const i32 direction : {1, -1}) {
      Pins turned = pins;
      for (i32 steps = 1; steps <= columnCount / 2 && steps + way <= keysLeft; ++steps) {
        turn(turned, row, direction);
        const double rest =
            more > 0 ? bestTurn(turned, column, row, keysLeft - steps - way, more - 1).fall
                     : expectedFall(turned, column);
        const double fall = rest - keyCost * (steps + way);
        if (fall > best.fall) best = {{row, direction * steps}, fall};
      }
    }
  }
  return best;
}

class Bowler {
 public:
  explicit Bowler(i32 keyPause) : keyPause_(keyPause) {}

  i32 nextKey() {
    const Piece* ball = ballInFlight();
    if (ball == nullptr) plan_ = {};
    if (keyPause_ == 0 || ball == nullptr || gameTick() < lastKeyTick + keyPause_ || isSettling()) {
      return 0;
    }
    if (plan_.steps == 0) {
      const i32 timeLeft = std::max(0, 180 - ball->y) * 26 + 300;
      plan_ = bestTurn(pinsInView(), ball->column, selectedRow, timeLeft / keyPause_, 1).plan;
    }
    return nextKeyOf(plan_);
  }

 private:
  i32 keyPause_;
  Plan plan_;
};

// A player with so many ms between two keys; 0 presses none.
void report(const std::string& name, i32 keyPause, i32 games) {
  double sum = 0, seconds = 0;
  i32 lowest = perfectGame, highest = 0, strikes = 0;
  for (i32 game = 1; game <= games; ++game) {
    Bowler player(keyPause);
    const HeadlessGame seeded = {modeTitled("Midnight Bowling"), 0, 0, game};
    seconds += playHeadless(seeded, [&](i32) { return player.nextKey(); }).length / 1000.0;
    const i32 points = bowlingGame(bowlingRolls).points;
    sum += points;
    lowest = std::min(lowest, points);
    highest = std::max(highest, points);
    strikes += static_cast<i32>(std::count(bowlingRolls.begin(), bowlingRolls.end(), pinCount));
  }
  std::cout << std::left << std::setw(20) << name << std::right << std::setw(12)
            << std::lround(sum / games) << std::setw(12) << lowest << std::setw(12) << highest
            << std::setw(12) << std::setprecision(2) << std::fixed << 1.0 * strikes / games
            << std::setw(14) << std::lround(seconds / games) << std::endl;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    std::cerr << "usage: bench_bowling <game folder> [games]\n";
    return EXIT_FAILURE;
  }
  const i32 games = argc > 2 ? std::max(1, std::atoi(argv[2])) : 100;
  try {
    setUpHeadless(argv[1]);
    std::cout
        << "player               mean points      lowest     highest     strikes  mean seconds\n";
    report("no key", 0, games);
    report("a key in 450 ms", 450, games);
    report("a key in 300 ms", 300, games);
    report("a key in 200 ms", 200, games);
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return EXIT_FAILURE;
  }
  return EXIT_SUCCESS;
}
