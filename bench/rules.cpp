#include <benchmark/benchmark.h>

#include "game/loadresources.h"
#include "game/model.h"
#include "game/playloop.h"
#include "present/display.h"
#include "rules/rowshift.h"

// Frames a second of the rules alone, from movePieces to scanPieces, on a busy board: columns of
// two to five pieces, and always a piece in flight in each column. Sounds are only listed.
// bench_rules
namespace {

using namespace glonks;

void fillBoard() {
  for (i16 column = 0; column < columnCount; ++column) {
    for (i16 row = 0; row < rowCount; ++row) {
      Cell& cell = playfield[static_cast<std::size_t>(row)][column];
      cell = Cell{};
      cell.occupied = flagOf(row < 2 + column % 4);
      cell.name = "Glonk";
      cell.variety = static_cast<i16>(1 + (row + column) % 4);
      cell.column = column;
      cell.y = floorOf(row);
    }
  }
}

void refill() {
  fillBoard();
  for (i16 column = 0; column < columnCount; ++column) {
    Piece& piece = grow(fallingPieces, fallingPiecesUpper);
    piece.name = "Glonk";
    piece.alive = True;
    piece.column = column;
    piece.y = static_cast<i16>(column * 20);
    piece.velocity = 1;
  }
}

void runRules(benchmark::State& state) {
  ds = createDirectSound("");
  loadSamples();
  refill();
  for (auto _ : state) {
    stepRules(runPlainly);
    if (fallingPiecesUpper < columnCount / 2) {
      fallingPieces.clear();
      fallingPiecesUpper = -1;
      refill();
    }
  }
  state.counters["frames/s"] =
      benchmark::Counter(static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
}
BENCHMARK(runRules);

}  // namespace

BENCHMARK_MAIN();
