#include "rules/slamming.h"

#include <algorithm>

#include "base/text.h"
#include "game/model/model.h"
#include "present/effects/effects.h"
#include "present/effects/ticker.h"
#include "rules/points.h"
#include "rules/removal.h"
#include "rules/settling.h"

namespace glonks {
namespace {

constexpr i32 bonusAbove = 6;  // upper bound of the eliminations
constexpr i16 zapLeft = 100;   // x of a zap in column 0
constexpr i16 zapTop = 80;     // from a piece's y to its zap's

// From one Slammer to another of the same line: a row if horizontal, else a column.
struct Segment {
  i16 low = 0;
  i16 high = 0;
  i16 line = 0;
};

struct Elimination {
  i16 row = 0;
  i16 column = 0;
  Flag horizontal = False;
};

struct Segments {
  std::vector<Segment> rows;
  std::vector<Segment> columns;
};

// Oddity 9: every pair is entered twice, as (i, j) and as (j, i), and the bonus counts all of it.
Segments pairUp(const std::vector<SlammerPlace>& slammers, i16 upper) {
  Segments segments;
  for (i32 i = 0; i <= upper; ++i) {
    for (i32 j = 0; j <= upper; ++j) {
      if (i == j) continue;
      const SlammerPlace& a = slammers[static_cast<std::size_t>(i)];
      const SlammerPlace& b = slammers[static_cast<std::size_t>(j)];
      if (a.row == b.row) {
        segments.rows.push_back(
            {std::min(a.column, b.column), std::max(a.column, b.column), a.row});
      }
      if (a.column == b.column) {
        segments.columns.push_back({std::min(a.row, b.row), std::max(a.row, b.row), a.column});
      }
    }
  }
  return segments;
}

Elimination placeAt(const Segment& segment, i16 at, Flag horizontal) {
  if (horizontal == True) return {segment.line, at, horizontal};
  return {at, segment.line, horizontal};
}

Cell& cellOf(const Elimination& place) { return cellAt(place.row, place.column); }

// Whether the segment holds nothing but identical pieces that can be slammed. Two adjacent Slammers
// are a run too: the first cell looked at is then the second Slammer. Oddity 10: the Slammers
// themselves aren't looked at otherwise, so one that a Bomb has taken since the scan saw it still
// closes its segment.
bool isRun(const Segment& segment, Flag horizontal) {
  const Cell& first = cellOf(placeAt(segment, static_cast<i16>(segment.low + 1), horizontal));
  if (first.occupied != True) return false;
  for (auto at = static_cast<i16>(segment.low + 1); at < segment.high; ++at) {
    const Cell& cell = cellOf(placeAt(segment, at, horizontal));
    if (cell.occupied != True || cell.name != first.name || cell.variety != first.variety ||
        cell.slammable == False) {
      return false;
    }
  }
  return true;
}

void addRuns(const std::vector<Segment>& segments, Flag horizontal,
             std::vector<Elimination>& eliminations) {
  for (const Segment& segment : segments) {
    if (!isRun(segment, horizontal)) continue;
    for (auto at = static_cast<i16>(segment.low + 1); at < segment.high; ++at) {
      eliminations.push_back(placeAt(segment, at, horizontal));
    }
    eliminations.push_back(placeAt(segment, segment.low, horizontal));
    eliminations.push_back(placeAt(segment, segment.high, horizontal));
  }
}

void payBonus(i32 upper) {
  if (upper <= bonusAbove) return;
  const i32 bonus = upper / 2 * slamBonusPoints;
  payScore(bonus);
  pushMessage("Slam bonus!  " + signedNumber(bonus) + " points");
}

// A place that is listed again finds its cell empty by then.
void eliminate(const Elimination& place) {
  const Cell& cell = cellOf(place);
  if (cell.occupied != True) return;
  removePiece(place.row, place.column);
  pushZap(static_cast<i16>(cellPitch * cell.column + zapLeft), clamped<i16>(i32{cell.y} + zapTop),
          place.horizontal);
}

}  // namespace

void checkSlams(const std::vector<SlammerPlace>& slammers, i16 upper) {
  const Segments segments = pairUp(slammers, upper);
  std::vector<Elimination> eliminations;
  addRuns(segments.rows, True, eliminations);
  addRuns(segments.columns, False, eliminations);
  if (eliminations.empty()) return;
  payBonus(static_cast<i32>(eliminations.size()) - 1);
  for (const Elimination& place : eliminations) eliminate(place);
  settlePieces();
}

}  // namespace glonks
