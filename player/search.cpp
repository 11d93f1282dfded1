#include "player/search.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>
#include <vector>

#include "player/judgement.h"

namespace glonks {
namespace {

constexpr double lostGame = 400;          // tenths of a piece
constexpr i32 fallTime = 650;             // ms for pieces to come down a row or two
constexpr i32 halfRow = columnCount / 2;  // no turn has to be longer
constexpr std::size_t runsTried = 40;

// A board that can be reached, and the way to it.
struct Node {
  Position position;
  i32 pointer = 0;         // row
  i32 time = 0;            // ms from now
  std::size_t landed = 0;  // pieces in flight that have come down by then
  Plan first;
  double worth = 0;  // of all that happened on the way, less the keys
  double total = 0;  // with what is in flight, and with how the board lies then
};

bool isBetter(const Node& a, const Node& b) { return a.total > b.total; }

// Slides of a row, to the right or below 0 to the left, that bring the nearest marked piece into a
// column.
std::optional<i32> slidesTo(RowBits marked, i32 column) {
  for (i32 away = 0; away <= halfRow; ++away) {
    for (const i32 slides : {away, -away}) {
      if ((marked >> ((column - slides + columnCount) % columnCount) & 1) != 0) return slides;
    }
  }
  return {};
}

// A run up a column that turning its rows would line up: Slammers in the lowest and in the highest
// row, and identical pieces in all between.
struct Run {
  i32 low = 0;
  i32 high = 0;
  std::array<i32, rowCount> slides = {};  // by row
  double worth = 0;                       // as far as it can be told beforehand
};

class Search {
 public:
  Search(const BoardView& view, const Foresight& foresight) : view_(view), foresight_(foresight) {}

  Plan run() {
    Node start;
    start.position = view_.position;
    start.pointer = view_.pointer;
    best_.total = std::numeric_limits<double>::lowest();
    finish(start);
    if (foresight_.lineUp) tryRuns(start);
    std::vector<Node> front = {start};
    for (i32 turn = 0; turn < foresight_.turns; ++turn) front = turnsAfter(front);
    return best_.first;
  }

 private:
  void count(Node& node, const Gain& gain) const {
    if (gain.pieces > 0) node.worth += worthOf(gain);
  }

  void land(Node& node) const {
    const SeenFalling& piece = view_.incoming[node.landed++];
    Gain gain;
    if (!drop(node.position, piece.column, piece.kind, piece.isBall, gain)) node.worth -= lostGame;
    count(node, gain);
  }

  void pass(Node& node, i32 time) const {
    node.time += time;
    if (!foresight_.incoming) return;
    while (node.landed < view_.incoming.size() &&
           view_.incoming[node.landed].landsIn <= node.time) {
      land(node);
    }
  }

  void point(Node& node, i32 row) const {
    const i32 keys = std::abs(row - node.pointer);
    node.pointer = row;
    node.worth -= keyCost * keys;
    pass(node, keys * foresight_.keyPause);
  }

  void slide(Node& node, bool right) const {
    node.worth -= keyCost;
    pass(node, foresight_.keyPause);
    Gain gain;
    turnRow(node.position, node.pointer, right, gain);
    count(node, gain);
    if (gain.falls > 0) pass(node, gain.falls * fallTime);
  }

  // Judges a way that ends here, and keeps the best.
  void finish(Node& node) {
    Node end = node;
    while (foresight_.incoming && end.landed < view_.incoming.size()) land(end);
    node.total =
        end.worth + (foresight_.judges ? lieOf(end.position) : lieAtFirstSight(end.position));
    if (isBetter(node, best_)) best_ = node;
  }

  // The best boards after one more turned row.
  std::vector<Node> turnsAfter(const std::vector<Node>& front) {
    std::vector<Node> next;
    for (const Node& node : front) {
      for (i32 row = 0; row < rowCount; ++row) {
        if (node.position[occupiedTrait][static_cast<std::size_t>(row)] == 0) break;
        for (const bool right : {true, false}) addTurn(node, row, right, next);
      }
    }
    const auto kept = std::min(next.size(), static_cast<std::size_t>(foresight_.kept));
    std::partial_sort(next.begin(), next.begin() + static_cast<std::ptrdiff_t>(kept), next.end(),
                      isBetter);
    next.resize(kept);
    return next;
  }

  void addTurn(Node node, i32 row, bool right, std::vector<Node>& next) {
    const bool isFirst = node.first.steps == 0;
    point(node, row);
    for (i32 steps = 1; steps <= foresight_.slides; ++steps) {
      slide(node, right);
      if (isFirst) node.first = {row, right ? steps : -steps};
      finish(node);
      next.push_back(node);
    }
  }

  void tryRuns(const Node& start) {
    std::vector<Run> runs;
    for (Kind kind = 1; kind < kindNumbers; ++kind) {
      const Cells places = placesOf(start.position, kind);
      if (countOf(places) == 0) continue;
      for (i32 column = 0; column < columnCount; ++column) {
        addRuns(start.position[slammerTrait], places, column, runs);
      }
    }
    const std::size_t tried = std::min(runs.size(), runsTried);
    std::partial_sort(runs.begin(), runs.begin() + static_cast<std::ptrdiff_t>(tried), runs.end(),
                      [](const Run& a, const Run& b) { return a.worth > b.worth; });
    for (std::size_t i = 0; i < tried; ++i) {
      for (const bool upward : {true, false}) tryRun(start, runs[i], upward);
    }
  }

  // All runs of one kind in one column.
  static void addRuns(const Cells& slammers, const Cells& places, i32 column,
                      std::vector<Run>& runs) {
    for (std::size_t low = 0; low + 2 < rowCount; ++low) {
      const auto first = slidesTo(slammers[low], column);
      if (!first) continue;
      Run run;
      run.low = static_cast<i32>(low);
      run.slides[low] = *first;
      double cost = keyCost * std::abs(*first);
      for (std::size_t row = low + 1; row + 1 < rowCount; ++row) {
        const auto between = slidesTo(places[row], column);
        if (!between) break;
        run.slides[row] = *between;
        cost += keyCost * (std::abs(*between) + 1);
        const auto last = slidesTo(slammers[row + 1], column);
        if (!last) continue;
        Run whole = run;
        whole.high = static_cast<i32>(row) + 1;
        whole.slides[row + 1] = *last;
        whole.worth =
            pieceWorth * (whole.high - whole.low - 1) - cost - keyCost * (std::abs(*last) + 1);
        runs.push_back(whole);
      }
    }
  }

  void tryRun(Node node, const Run& run, bool upward) {
    for (i32 i = 0; i <= run.high - run.low; ++i) {
      const i32 row = upward ? run.low + i : run.high - i;
      const i32 slides = run.slides[static_cast<std::size_t>(row)];
      if (slides == 0) continue;
      point(node, row);
      if (node.first.steps == 0) node.first = {row, slides};
      for (i32 done = 0; done < std::abs(slides); ++done) slide(node, slides > 0);
    }
    finish(node);
  }

  const BoardView& view_;
  const Foresight& foresight_;
  Node best_;
};

}  // namespace

Plan bestPlan(const BoardView& view, const Foresight& foresight) {
  return Search(view, foresight).run();
}

}  // namespace glonks
