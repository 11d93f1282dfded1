#include "player/position.h"

#include <algorithm>

#include "rules/points.h"

namespace glonks {
namespace {

constexpr RowBits bitOf(i32 column) { return static_cast<RowBits>(1 << column); }
constexpr RowBits right(RowBits bits) { return static_cast<RowBits>(bits << 1 & wholeRow); }
constexpr RowBits left(RowBits bits) { return static_cast<RowBits>(bits >> 1); }

constexpr std::array<Trait, 4> kindBits = {kindBit0, kindBit1, kindBit2, kindBit3};

// What slams, and how many entries the bonus counts for it.
struct Slams {
  Cells cells = {};
  i32 entries = 0;
  i32 count = 0;

  void add(i32 row, RowBits bits) { cells[static_cast<std::size_t>(row)] |= bits; }
  void note(i32 slams, i32 length) {
    count += slams;
    entries += slams * 2 * length;
  }
};

// Runs of one row between two Slammers. `run` marks where those that began `length` cells ago have
// come to.
void findInRow(RowBits slammers, RowBits slammable, RowBits pairs, i32 row, Slams& slams) {
  if ((slammers & (slammers - 1)) == 0) return;
  RowBits run = right(slammers);
  for (i32 length = 2; run != 0; ++length) {
    const auto ends = static_cast<RowBits>(run & slammers);
    if (ends != 0) {
      slams.note(countOf(ends), length);
      for (i32 i = 0; i < length; ++i) slams.add(row, static_cast<RowBits>(ends >> i));
    }
    run = static_cast<RowBits>(run & slammable);
    if (length > 2) run = static_cast<RowBits>(run & right(pairs));
    run = right(run);
  }
}

// The same up the columns, all of them at once.
void findInColumns(const Cells& slammers, const Cells& slammable, const Cells& pairs,
                   Slams& slams) {
  for (std::size_t low = 0; low + 1 < rowCount; ++low) {
    RowBits run = slammers[low];
    for (std::size_t high = low + 1; run != 0 && high < rowCount; ++high) {
      const auto ends = static_cast<RowBits>(run & slammers[high]);
      if (ends != 0) {
        slams.note(countOf(ends), static_cast<i32>(high - low + 1));
        for (std::size_t row = low; row <= high; ++row) slams.cells[row] |= ends;
      }
      run = static_cast<RowBits>(run & slammable[high]);
      if (high > low + 1) run = static_cast<RowBits>(run & pairs[high - 1]);
    }
  }
}

Cells both(const Cells& a, const Cells& b) {
  Cells common;
  for (std::size_t row = 0; row < rowCount; ++row) common[row] = a[row] & b[row];
  return common;
}

// The pieces that nothing is missing below.
Cells supported(const Position& position) {
  Cells resting = position[occupiedTrait];
  for (std::size_t row = 1; row < rowCount; ++row) resting[row] &= resting[row - 1];
  return resting;
}

void remove(Position& position, const Cells& cells, Gain& gain) {
  gain.pieces += countOf(cells);
  gain.wanted += countOf(both(cells, position[wantedTrait]));
  gain.forbidden += countOf(both(cells, position[forbiddenTrait]));
  gain.costly += countOf(both(cells, position[costlyTrait]));
  gain.harmful += countOf(both(cells, position[harmfulTrait]));
  for (Cells& trait : position.traits) {
    for (std::size_t row = 0; row < rowCount; ++row) {
      trait[row] &= static_cast<RowBits>(~cells[row]);
    }
  }
}

bool slamOnce(Position& position, Gain& gain) {
  const Cells resting = supported(position);
  const Cells slammers = both(position[slammerTrait], resting);
  const Cells slammable = both(position[slammableTrait], resting);
  const Cells inRows = pairsInRows(position);
  Slams slams;
  for (std::size_t row = 0; row < rowCount; ++row) {
    findInRow(slammers[row], slammable[row], inRows[row], static_cast<i32>(row), slams);
  }
  findInColumns(slammers, slammable, pairsInColumns(position), slams);
  if (slams.count == 0) return false;
  constexpr i32 bonusFrom = 8;
  if (slams.entries >= bonusFrom) gain.bonus += (slams.entries - 1) / 2 * slamBonusPoints;
  gain.slams += slams.count;
  remove(position, slams.cells, gain);
  return true;
}

// Lets each column down by one where something is missing; false once nothing is.
bool sink(Position& position) {
  bool sunk = false;
  for (std::size_t row = 0; row + 1 < rowCount; ++row) {
    const Cells& occupied = position[occupiedTrait];
    const auto loose = static_cast<RowBits>(occupied[row + 1] & ~occupied[row]);
    if (loose == 0) continue;
    sunk = true;
    for (Cells& trait : position.traits) {
      const auto moved = static_cast<RowBits>(trait[row + 1] & loose);
      trait[row] |= moved;
      trait[row + 1] ^= moved;
    }
  }
  return sunk;
}

void settle(Position& position) {
  while (sink(position)) {
  }
}

// What has its support slams at once, the rest when it has come down.
void slamAll(Position& position, Gain& gain) {
  bool again = true;
  while (again) {
    again = slamOnce(position, gain);
    if (sink(position)) {
      settle(position);
      ++gain.falls;
      again = true;
    }
  }
}

}  // namespace

void put(Position& position, i32 row, i32 column, Kind kind) {
  for (std::size_t trait = 0; trait < traitCount; ++trait) {
    if (has(kind, static_cast<Trait>(trait))) {
      position.traits[trait][static_cast<std::size_t>(row)] |= bitOf(column);
    }
  }
}

Cells placesOf(const Position& position, Kind kind) {
  Cells places = position[slammableTrait];
  for (const Trait bit : kindBits) {
    const RowBits other = has(kind, bit) ? 0 : wholeRow;
    for (std::size_t row = 0; row < rowCount; ++row) places[row] &= position[bit][row] ^ other;
  }
  return places;
}

Cells pairsInRows(const Position& position) {
  Cells pairs;
  for (std::size_t row = 0; row < rowCount; ++row) {
    const RowBits slammable = position[slammableTrait][row];
    auto same = static_cast<RowBits>(slammable & left(slammable));
    for (const Trait bit : kindBits) {
      const RowBits bits = position[bit][row];
      same &= static_cast<RowBits>(~(bits ^ left(bits)));
    }
    pairs[row] = same;
  }
  return pairs;
}

Cells pairsInColumns(const Position& position) {
  Cells pairs = {};
  for (std::size_t row = 0; row + 1 < rowCount; ++row) {
    const Cells& slammable = position[slammableTrait];
    auto same = static_cast<RowBits>(slammable[row] & slammable[row + 1]);
    for (const Trait bit : kindBits) {
      same &= static_cast<RowBits>(~(position[bit][row] ^ position[bit][row + 1]));
    }
    pairs[row] = same;
  }
  return pairs;
}

i32 heightOf(const Position& position, i32 column) {
  i32 height = 0;
  for (const RowBits row : position[occupiedTrait]) height += row >> column & 1;
  return height;
}

void turnRow(Position& position, i32 row, bool toRight, Gain& gain) {
  for (Cells& trait : position.traits) {
    RowBits& bits = trait[static_cast<std::size_t>(row)];
    bits = static_cast<RowBits>(toRight ? right(bits) | bits >> (columnCount - 1)
                                        : left(bits) | (bits << (columnCount - 1) & wholeRow));
  }
  slamAll(position, gain);
}

bool drop(Position& position, i32 column, Kind kind, bool isBall, Gain& gain) {
  const i32 height = heightOf(position, column);
  if (isBall) {
    Cells taken;
    for (std::size_t row = 0; row < rowCount; ++row) {
      taken[row] = position[occupiedTrait][row] & bitOf(column);
    }
    remove(position, taken, gain);
    return true;
  }
  if (height == rowCount) return false;
  put(position, height, column, kind);
  slamAll(position, gain);
  return true;
}

}  // namespace glonks
