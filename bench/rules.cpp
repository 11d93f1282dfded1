#include <benchmark/benchmark.h>

#include <array>
#include <map>
#include <string>
#include <vector>

#include "game/loading/loadresources.h"
#include "game/model/model.h"
#include "game/playloop.h"
#include "present/screen/display.h"
#include "rules/boardscan.h"
#include "rules/timer.h"
#include "tests/fakes/clock.h"
#include "tests/fakes/sound.h"

// The rules alone, without drawing; sounds are only listed. bench_rules
namespace {

using namespace glonks;

constexpr u32 frameTime = 27;  // ms, as in a real game

// `soft`: can be slammed and bombed.
Piece pieceOf(const std::string& name, Flag Piece::*kind, Flag soft, i32 timerMin, i32 timerMax) {
  Piece piece;
  piece.name = name;
  piece.*kind = True;
  piece.slammable = soft;
  piece.bombable = soft;
  piece.timerMin = timerMin;
  piece.timerMax = timerMax;
  piece.direction = 1;
  piece.value = 25;
  return piece;
}

Piece glonkOf(i16 variety) {
  Piece glonk;
  glonk.name = "Glonk";
  glonk.variety = variety;
  glonk.value = 10;
  glonk.slammable = True;
  glonk.bombable = True;
  return glonk;
}

// By the letters of the boards below.
const std::map<char, Piece> pieces = {
    {'1', glonkOf(1)},
    {'2', glonkOf(2)},
    {'3', glonkOf(3)},
    {'4', glonkOf(4)},
    {'S', pieceOf("Slammer", &Piece::isSlammer, False, 0, 0)},
    {'B', pieceOf("Bomb", &Piece::isBomb, False, 25000, 35000)},
    {'C', pieceOf("Calculator", &Piece::isCalculator, True, 11000, 13000)},
    {'G', pieceOf("Gorgon", &Piece::isGorgon, True, 50000, 70000)},
    {'H', pieceOf("Shifter", &Piece::isShifter, True, 7000, 9000)},
    {'U', pieceOf("Bauble", &Piece::isBauble, False, 60000, 120000)},
    {'D', pieceOf("Diamond", &Piece::isDiamond, False, 0, 0)},
};

using Board = std::array<const char*, rowCount>;  // from the top; a dot is a free cell

// A late game: every kind, and Slammers in lines that hold no run, also when a Shifter has moved
// its row.
constexpr Board busy = {"..........",  //
                        "..........",  //
                        "1..C.G..2.",  //
                        "2S3B14.S4B",  //
                        "GUS1CS4231",  //
                        "2SH2311D4S",  //
                        "3131S24SH2"};
constexpr const char* inFlight = "12D3412431";  // by column

// Two runs, and pieces that drop when these have gone.
constexpr Board slam = {"..........",  //
                        "..........",  //
                        ".......3..",  //
                        "..42...S..",  //
                        "42314..2..",  //
                        "23142..2..",  //
                        "S111S..S.."};
constexpr i16 slamZaps = 9;

Piece armed(char letter, i16 column, i16 y) {
  Piece piece = pieces.at(letter);
  piece.alive = True;
  piece.column = column;
  piece.y = y;
  if (piece.timerMax > 0) armTimer(piece);
  return piece;
}

// Brings the board back to a picture. What stands in its place stays, with its timer.
void set(const Board& board) {
  for (i16 row = 0; row < rowCount; ++row) {
    for (i16 column = 0; column < columnCount; ++column) {
      Cell& cell = cellAt(row, column);
      const char letter = board[static_cast<std::size_t>(rowCount - 1 - row)][column];
      if (letter == '.') {
        cell.occupied = False;
        continue;
      }
      const Piece& piece = pieces.at(letter);
      const bool stands = cell.occupied == True && cell.name == piece.name;
      if (stands && cell.variety == piece.variety) continue;
      static_cast<Piece&>(cell) = armed(letter, column, floorOf(row));
      cell.occupied = True;
    }
  }
}

template <typename Element>
void empty(std::vector<Element>& list, i16& upper) {
  list.clear();
  upper = -1;
}

// What the rules leave for the drawing, and what is still in flight.
void clearLists() {
  empty(fallingPieces, fallingPiecesUpper);
  empty(impacts, impactsUpper);
  empty(zaps, zapsUpper);
  empty(scorePopups, scorePopupsUpper);
  empty(tickerLines, tickerUpper);
  fake::sounds.clear();
}

void refill() {
  clearLists();
  set(busy);
  for (i16 column = 0; column < columnCount; ++column) {
    Piece piece = armed(inFlight[column], column, static_cast<i16>(column * 20));
    piece.velocity = 1;
    grow(fallingPieces, fallingPiecesUpper) = piece;
  }
}

void setUp() {
  ds = createDirectSound("");
  loadSamples();
  pieceCatalogUpper = -1;
  for (const auto& [letter, piece] : pieces) {
    catalogEntry(++pieceCatalogUpper) = piece;
  }
  playfield = {};
}

// Frames a second, from movePieces to scanPieces.
void runRules(benchmark::State& state) {
  setUp();
  refill();
  for (auto _ : state) {
    stepRules(runPlainly);
    fake::clockNow += frameTime;
    if (fallingPiecesUpper < columnCount / 2) refill();
  }
  state.counters["frames/s"] =
      benchmark::Counter(static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
}
BENCHMARK(runRules);

// The one frame in which two runs are slammed, with the setting of its board.
void slamRules(benchmark::State& state) {
  setUp();
  for (auto _ : state) {
    clearLists();
    set(slam);
    scanPieces();
    if (zapsUpper != slamZaps - 1) {
      state.SkipWithError("The board holds no slam.");
      break;
    }
  }
}
BENCHMARK(slamRules);

}  // namespace

BENCHMARK_MAIN();
