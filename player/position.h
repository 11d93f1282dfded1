#pragma once

#include <array>
#include <cstdint>

#include "player/kinds.h"

// A board of pieces at rest, as a playing program thinks ahead on it.
namespace glonks {

// A bit for each column of a row, the lowest for column 0.
using RowBits = std::uint16_t;
inline constexpr RowBits wholeRow = (1 << columnCount) - 1;

// A bit for each cell, row by row from the bottom.
using Cells = std::array<RowBits, rowCount>;

// The number of bits set in each row of cells; far quicker than the compiler's routine where the
// processor's own instruction can't be counted on.
inline constexpr auto bitCounts = [] {
  std::array<std::uint8_t, 1 << columnCount> counts = {};
  for (std::size_t i = 1; i < counts.size(); ++i) {
    counts[i] = static_cast<std::uint8_t>(counts[i / 2] + i % 2);
  }
  return counts;
}();

// `bits` within wholeRow.
inline i32 countOf(i32 bits) { return bitCounts[static_cast<std::size_t>(bits)]; }

inline i32 countOf(const Cells& cells) {
  i32 count = 0;
  for (const RowBits row : cells) count += countOf(row);
  return count;
}

// Where each trait is found: so that whole rows of cells are looked at in one step.
struct Position {
  std::array<Cells, traitCount> traits = {};

  Cells& operator[](Trait trait) { return traits[trait]; }
  const Cells& operator[](Trait trait) const { return traits[trait]; }
};

// Puts a piece into an empty cell.
void put(Position& position, i32 row, i32 column, Kind kind);

// Where the pieces are that can be slammed and are identical to this one.
Cells placesOf(const Position& position, Kind kind);

// Pairs of neighbours in a row, or one above the other, that are identical and can be slammed. Each
// pair is marked at its left or lower piece.
Cells pairsInRows(const Position& position);
Cells pairsInColumns(const Position& position);

// Pieces of a column, in a board that has settled.
i32 heightOf(const Position& position, i32 column);

// What was removed.
struct Gain {
  i32 slams = 0;
  i32 pieces = 0;  // Slammers too; and those of them that are
  i32 wanted = 0;
  i32 forbidden = 0;
  i32 costly = 0;
  i32 harmful = 0;
  i32 bonus = 0;  // points
  i32 falls = 0;  // how often pieces came down, one lot after the other
};

// A row turns by one column. What has lost its support comes down, and all that slams goes, as in a
// game.
void turnRow(Position& position, i32 row, bool right, Gain& gain);

// A piece in flight comes down in its column; a Bowling Ball (which has no other trait than
// occupiedTrait) takes all of it. False if there is no room.
bool drop(Position& position, i32 column, Kind kind, bool isBall, Gain& gain);

}  // namespace glonks
