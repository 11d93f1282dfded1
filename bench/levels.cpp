#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <exception>
#include <iomanip>
#include <iostream>
#include <string>
#include <vector>

#include "bench/headlessgame.h"
#include "game/model/gametick.h"
#include "game/model/model.h"
#include "game/modes.h"
#include "storage/files/datafiles.h"

// How hard the Arcade levels and the grades of B-Type are, and how long Freestyle lasts: a simple
// player plays each of them some times. bench_levels <game folder> [games a level] [mode]
//
// The player looks two turned rows ahead and does the first of them, a key at a time. A person
// plans further, but doesn't see all that it sees.
namespace {

using namespace glonks;

constexpr i32 firstLevel = 3101;
constexpr i32 lastLevel = 3108;
constexpr i32 keyPause = 300;  // ms between two keys of the player

// The pieces at rest.
struct Board {
  std::array<std::array<const Piece*, columnCount>, rowCount> rows = {};
  const Piece*& at(i32 row, i32 column) { return rows.at(row).at(column); }
  const Piece* at(i32 row, i32 column) const { return rows.at(row).at(column); }
};

// A row or a column.
struct Line {
  bool horizontal;
  i32 number;
  i32 length() const { return horizontal ? columnCount : rowCount; }
  const Piece*& at(Board& board, i32 i) const {
    return horizontal ? board.at(number, i) : board.at(i, number);
  }
  const Piece* at(const Board& board, i32 i) const {
    return horizontal ? board.at(number, i) : board.at(i, number);
  }
};

std::vector<Line> allLines() {
  std::vector<Line> all;
  for (i32 row = 0; row < rowCount; ++row) all.push_back({true, row});
  for (i32 column = 0; column < columnCount; ++column) all.push_back({false, column});
  return all;
}
const std::vector<Line> lines = allLines();

Board boardInView() {
  Board board;
  for (i32 row = 0; row < rowCount; ++row) {
    for (i32 column = 0; column < columnCount; ++column) {
      const Cell& cell = cellAt(row, column);
      if (cell.occupied == True) board.at(row, column) = &cell;
    }
  }
  return board;
}

bool isSettling() {
  return std::any_of(fallingPieces.begin(), fallingPieces.end(),
                     [](const Piece& piece) { return piece.tallied == True; });
}

i32 heightOf(const Board& board, i32 column) {
  i32 height = 0;
  while (height < rowCount && board.at(height, column) != nullptr) ++height;
  return height;
}

i32 piecesOn(const Board& board) {
  i32 pieces = 0;
  for (i32 column = 0; column < columnCount; ++column) pieces += heightOf(board, column);
  return pieces;
}

void settle(Board& board) {
  for (i32 column = 0; column < columnCount; ++column) {
    i32 height = 0;
    for (i32 row = 0; row < rowCount; ++row) {
      const Piece* piece = board.at(row, column);
      board.at(row, column) = nullptr;
      if (piece != nullptr) board.at(height++, column) = piece;
    }
  }
}

void turn(Board& board, i32 row, i32 direction) {
  auto& cells = board.rows.at(row);
  std::rotate(cells.begin(), direction > 0 ? cells.end() - 1 : cells.begin() + 1, cells.end());
  settle(board);
}

bool isSlammer(const Piece* piece) { return piece != nullptr && piece->isSlammer == True; }

bool isToStay(const Piece& piece) { return avoidOn == True && piece.name == avoidName; }

double worthOf(const Piece& piece) {
  if (isToStay(piece)) return -1000;
  const bool wanted = piece.name == "BType" || (piece.name == goalPieceName && goalPieceCount > 0);
  return wanted ? 30 : 10;
}

// Where the run of identical pieces that begins at `low` ends; `low` if none begins there.
i32 endOfRun(const Board& board, const Line& line, i32 low) {
  const Piece* first = line.at(board, low);
  if (first == nullptr || first->slammable == False) return low;
  const auto continues = [&](const Piece* piece) {
    return piece != nullptr && piece->imageIndex == first->imageIndex;
  };
  i32 end = low + 1;
  while (end < line.length() && continues(line.at(board, end))) ++end;
  return end;
}

// Takes the slams of one line off the board. Slammers are kept for long runs while there is room.
bool slam(Board& board, const Line& line, double& worth) {
  bool slammed = false;
  for (i32 low = 0; low + 1 < line.length(); ++low) {
    if (!isSlammer(line.at(board, low))) continue;
    const i32 high = endOfRun(board, line, low + 1);
    if (high == line.length() || !isSlammer(line.at(board, high))) continue;
    worth += piecesOn(board) / 2.0 - 24;
    if (high - low > 2 && goalScore > score) worth += 30;
    for (i32 i = low + 1; i < high; ++i) worth += worthOf(*line.at(board, i));
    for (i32 i = low; i <= high; ++i) line.at(board, i) = nullptr;
    slammed = true;
  }
  return slammed;
}

double slamAll(Board& board) {
  double worth = 0;
  for (bool again = true; again;) {
    again = false;
    for (const Line& line : lines) again = slam(board, line, worth) || again;
    if (again) settle(board);
  }
  return worth;
}

// What the runs of one line promise, more so beside a Slammer.
double promiseOf(const Board& board, const Line& line) {
  double promise = 0;
  for (i32 low = 0, end = 0; low < line.length(); low = std::max(end, low + 1)) {
    end = endOfRun(board, line, low);
    if (end == low) continue;
    const bool atSlammer = (low > 0 && isSlammer(line.at(board, low - 1))) ||
                           (end < line.length() && isSlammer(line.at(board, end)));
    promise += end - low - (atSlammer ? 0 : 1);
  }
  return promise;
}

// What a Bomb in this cell will take.
double harvestOf(const Board& board, i32 row, i32 column) {
  double harvest = 0;
  for (i32 i = std::max(row - 1, 0); i <= std::min(row + 1, rowCount - 1); ++i) {
    for (i32 j = std::max(column - 1, 0); j <= std::min(column + 1, columnCount - 1); ++j) {
      const Piece* piece = board.at(i, j);
      if (piece != nullptr && piece->bombable == True) harvest += isToStay(*piece) ? -25 : 0.5;
    }
  }
  return harvest;
}

// How well the board lies for what is to come.
double lieOf(const Board& board) {
  constexpr std::array<double, rowCount + 1> costs = {0, 1, 3, 6, 11, 20, 50, 150};
  double lie = 0;
  for (const Line& line : lines) lie += promiseOf(board, line);
  for (i32 column = 0; column < columnCount; ++column) {
    const i32 height = heightOf(board, column);
    lie -= costs.at(height);
    for (i32 row = 0; row < height; ++row) {
      if (board.at(row, column)->isBomb == True) lie += harvestOf(board, row, column);
    }
  }
  return lie;
}

// The best turn of one row, with up to `more` turns of other rows after it.
Plan bestPlan(const Board& board, i32 pointer, i32 more) {
  constexpr double keyCost = 0.5;
  Plan best{pointer, 0, lieOf(board)};
  for (i32 row = 0; row < rowCount; ++row) {
    if (board.rows.at(row) == Board().rows.at(row)) break;  // empty, and so are those above
    for (const i32 direction : {1, -1}) {
      Board turned = board;
      double worth = -keyCost * std::abs(row - pointer);
      for (i32 steps = 1; steps <= columnCount / 2; ++steps) {
        turn(turned, row, direction);
        worth += slamAll(turned) - keyCost;
        const double rest = more > 0 ? bestPlan(turned, row, more - 1).worth : lieOf(turned);
        if (worth + rest > best.worth) best = {row, direction * steps, worth + rest};
      }
    }
  }
  return best;
}

class Player {
 public:
  void play() {
    if (gameTick() < lastKeyTick + keyPause || isSettling()) return;
    if (plan_.steps == 0) plan_ = bestPlan(boardInView(), selectedRow, 1);
    pressNextKey(plan_);
  }

 private:
  Plan plan_;
};

struct Tally {
  i32 wins = 0, fullColumn = 0, time = 0, avoid = 0, brokenOff = 0;
  double seconds = 0;
  double points = 0;
};

// What is played of a mode: an Arcade level, or an item of its list.
struct Contest {
  std::string mode;
  std::string title;
  i32 level = 0;
  i16 item = 0;
};

std::vector<Contest> allContests() {
  std::vector<Contest> all = {{"Freestyle", "Freestyle", freestyleLevel}};
  const Mode bType = modeTitled("B-Type");
  for (i16 item = 0; item < static_cast<i16>(bType.levelItems.size()); ++item) {
    all.push_back({"B-Type", bType.levelItems.at(item), bType.levelFiles.at(item), item});
  }
  for (i32 level = firstLevel; level <= lastLevel; ++level) all.push_back({"Arcade", "", level});
  return all;
}

void playGame(const Contest& contest, i32 game, Tally& tally) {
  Player player;
  levelOver = False;
  levelWon = False;
  const i32 length = playHeadless(modeTitled(contest.mode), contest.level, contest.item, game,
                                  [&] { player.play(); });
  tally.points += score;
  tally.seconds += length / 1000.0;
  if (levelWon == True) {
    ++tally.wins;
  } else if (levelOver == True) {
    ++(avoidOn == True && avoidLeft < 1 ? tally.avoid : tally.time);
  } else {
    ++(wasBrokenOff() ? tally.brokenOff : tally.fullColumn);
  }
}

void report(const Contest& contest, i32 games) {
  Tally tally;
  for (i32 game = 1; game <= games; ++game) playGame(contest, game, tally);
  std::cout << contest.level << "  " << std::left << std::setw(16)
            << (contest.title.empty() ? levelTitle : contest.title) << std::right;
  for (const i32 count :
       {games, tally.wins, tally.fullColumn, tally.time, tally.avoid, tally.brokenOff}) {
    std::cout << std::setw(12) << count;
  }
  std::cout << std::setw(13) << std::lround(tally.seconds / games) << std::setw(12)
            << std::lround(tally.points / games) << std::endl;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    std::cerr << "usage: bench_levels <game folder> [games a level] [mode]\n";
    return EXIT_FAILURE;
  }
  const i32 games = argc > 2 ? std::max(1, std::atoi(argv[2])) : 10;
  try {
    setUpHeadless(argv[1]);
    std::cout << "level                        games        wins full column        time       "
                 "avoid  broken off mean seconds mean points\n";
    for (const Contest& contest : allContests()) {
      if (argc <= 3 || contest.mode == argv[3]) report(contest, games);
    }
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return EXIT_FAILURE;
  }
  return EXIT_SUCCESS;
}
