#include "player/judgement.h"

#include <algorithm>
#include <array>
#include <bit>

namespace glonks {
namespace {

constexpr double wantedWorth = 30;       // more than a plain piece, for a goal
constexpr double forbiddenWorth = -400;  // what may not go, or not often
constexpr double costlyWorth = -30;
constexpr double harmfulWorth = 20;
constexpr double pointWorth = 0.005;
constexpr double wantedPointWorth = 0.05;  // while a score is to be reached

// By row, so that the pieces of a column of five cost 20.5.
constexpr std::array<double, rowCount> heightCosts = {1, 2, 3, 4.5, 10, 26, 100};
constexpr std::array<double, rowCount> firstHeightCosts = {1, 2, 3, 5, 9, 30, 100};
constexpr double stepCost = 0.35;                         // where a row ends, at both sides
constexpr double pairHope = 0.85;                         // of identical pieces beside each other
constexpr std::array<double, 3> runHope = {0.9, 2, 2.5};  // of one, two, more beside a Slammer
constexpr double slammerHope = 15;    // two pieces and a half that go with it later
constexpr double possibleHope = 1.6;  // of each piece in a run that could be lined up
constexpr double exposureCost = 1.5;
constexpr double ripeHarvest = 0.2;  // share of the worth of what a Bomb would take now
constexpr double freshHarvest = 0.1;

i32 count(i32 bits) { return countOf(bits & wholeRow); }

// The bits of a row, none beyond the board.
i32 rowOf(const Cells& cells, std::size_t row) { return row < rowCount ? cells[row] : 0; }

// What the Bombs in some cells take if they go off as the board lies.
double harvestOf(const Position& position, const Cells& bombs) {
  double harvest = 0;
  for (std::size_t row = 0; row < rowCount; ++row) {
    for (i32 left = bombs[row]; left != 0; left &= left - 1) {
      const i32 near = 7 << std::countr_zero(static_cast<u32>(left)) >> 1;
      for (std::size_t at = std::max<std::size_t>(row, 1) - 1; at <= row + 1; ++at) {
        const i32 hit = rowOf(position[bombableTrait], at) & near;
        harvest += pieceWorth * count(hit);
        harvest += wantedWorth * count(hit & rowOf(position[wantedTrait], at));
        harvest += forbiddenWorth * count(hit & rowOf(position[forbiddenTrait], at));
        harvest += costlyWorth * count(hit & rowOf(position[costlyTrait], at));
        harvest += harmfulWorth * count(hit & rowOf(position[harmfulTrait], at));
      }
    }
  }
  return harvest;
}

double bombsOf(const Position& position) {
  Cells fresh = position[bombTrait];
  for (std::size_t row = 0; row < rowCount; ++row) fresh[row] ^= position[ripeTrait][row];
  return ripeHarvest * harvestOf(position, position[ripeTrait]) +
         freshHarvest * harvestOf(position, fresh);
}

// Columns in which the next Slammer to land would meet another, and both would be gone.
i32 exposedColumns(const Position& position) {
  i32 exposed = 0;
  i32 below = wholeRow;
  i32 slammersBelow = 0;
  for (std::size_t row = 0; row < rowCount; ++row) {
    const i32 occupied = position[occupiedTrait][row];
    const i32 slammers = position[slammerTrait][row];
    exposed += count(below & ~occupied & (slammers << 1 | slammers >> 1 | slammersBelow));
    below = occupied;
    slammersBelow = slammers;
  }
  return exposed;
}

// The longest run that turning rows alone could line up in a column.
i32 longestPossible(const Position& position) {
  i32 longest = 0;
  for (Kind kind = 1; kind < kindNumbers; ++kind) {
    const Cells places = placesOf(position, kind);
    i32 length = -1;  // rows that have the kind, since the last one with a Slammer
    for (std::size_t row = 0; row < rowCount; ++row) {
      const bool slammer = position[slammerTrait][row] != 0;
      if (slammer) longest = std::max(longest, length);
      const bool goesOn = length >= 0 && places[row] != 0;
      length = goesOn ? length + 1 : slammer ? 0 : -1;
    }
  }
  return longest;
}

// Runs with a Slammer at one end. `at` marks the pieces beside it, `second` those to which the next
// piece of the run is identical, `third` those to whose next one the one after is.
double hopeOf(i32 at, i32 second, i32 third) {
  return runHope[0] * count(at & ~second) + runHope[1] * count(at & second & ~third) +
         runHope[2] * count(at & second & third);
}

double hopeOfRuns(const Position& position, const Cells& inRows, const Cells& inColumns) {
  const Cells& slammers = position[slammerTrait];
  double hope = 0;
  for (std::size_t row = 0; row < rowCount; ++row) {
    const i32 slammable = position[slammableTrait][row];
    const i32 pairs = inRows[row];
    hope += hopeOf(slammable & ~(pairs << 1) & slammers[row] << 1, pairs, pairs >> 1);
    hope += hopeOf(slammable & ~pairs & slammers[row] >> 1, pairs << 1, pairs << 2);
    const i32 above = inColumns[row];
    const i32 below = rowOf(inColumns, row - 1);
    hope += hopeOf(slammable & ~below & rowOf(slammers, row - 1), above, rowOf(inColumns, row + 1));
    hope += hopeOf(slammable & ~above & rowOf(slammers, row + 1), below, rowOf(inColumns, row - 2));
  }
  return hope;
}

double costOfHeights(const Position& position, const std::array<double, rowCount>& costs) {
  double cost = 0;
  for (std::size_t row = 0; row < rowCount; ++row) {
    cost += costs[row] * countOf(position[occupiedTrait][row]);
  }
  return cost;
}

i32 stepsOf(const Position& position) {
  i32 steps = 0;
  for (const i32 row : position[occupiedTrait]) steps += count((row ^ row >> 1) & wholeRow >> 1);
  return steps;
}

}  // namespace

double worthOf(const Gain& gain) {
  return pieceWorth * (gain.pieces - 2 * gain.slams) + wantedWorth * gain.wanted +
         forbiddenWorth * gain.forbidden + costlyWorth * gain.costly + harmfulWorth * gain.harmful +
         gain.bonus * (goalScore > score ? wantedPointWorth : pointWorth);
}

double lieOf(const Position& position) {
  const Cells inRows = pairsInRows(position);
  const Cells inColumns = pairsInColumns(position);
  return pairHope * (countOf(inRows) + countOf(inColumns)) +
         hopeOfRuns(position, inRows, inColumns) + possibleHope * longestPossible(position) +
         slammerHope * countOf(position[slammerTrait]) + bombsOf(position) -
         exposureCost * exposedColumns(position) - stepCost * stepsOf(position) -
         costOfHeights(position, heightCosts);
}

double lieAtFirstSight(const Position& position) {
  return countOf(pairsInRows(position)) + countOf(pairsInColumns(position)) -
         costOfHeights(position, firstHeightCosts);
}

}  // namespace glonks
