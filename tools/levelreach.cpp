#include "tools/levelreach.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>

#include "rules/points.h"

namespace glonks {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double mostCalculated = calculatorValues - 1;
constexpr double cocktailPieces = 5;  // a Bomb and four Glonks
// Each run is entered twice, so a place in it adds slamBonusPoints. A piece lies in one run of its
// row and one of its column, a Slammer ends two of each.
constexpr double slamPoints = 2 * slamBonusPoints;
constexpr double slammerPoints = 4 * slamBonusPoints;

// How often the timer of a piece can run out.
double timesUp(const Piece& piece, double time) {
  return std::floor(time / std::max(1, std::min(piece.timerMin, piece.timerMax)));
}

// What can become of one Gorgon: it and its young breed at each of their timers.
double brood(const Piece& piece, double time) { return std::exp2(timesUp(piece, time)); }

}  // namespace

template <typename Holds>
bool LevelReach::some(Holds holds) const {
  return std::any_of(pieces_.begin(), pieces_.end(), holds);
}

bool LevelReach::some(Flag Piece::*flag) const {
  return some([flag](const Piece& piece) { return piece.*flag == True; });
}

bool LevelReach::comes(const std::string& name) const {
  return some([&name](const Piece& piece) { return piece.name == name; });
}

bool LevelReach::lands(const std::string& name) const {
  return some(
      [&name](const Piece& piece) { return piece.name == name && piece.isBowlingBall == False; });
}

bool LevelReach::canBeRemoved(const std::string& name) const {
  const bool pinsFall =
      some([this](const Piece& piece) { return piece.isPin == True && isRemovable(piece); });
  return lands(name) && (pinsFall || some([this, &name](const Piece& piece) {
                           return piece.name == name && isRemovable(piece);
                         }));
}

// A Bomb goes with its own explosion, and a Slammer with its slam.
bool LevelReach::isRemovable(const Piece& piece) const {
  return some(&Piece::isBowlingBall) || piece.isBomb == True || piece.isSlammer == True ||
         (piece.bombable == True && some(&Piece::isBomb)) ||
         (piece.slammable == True && some(&Piece::isSlammer));
}

double LevelReach::spawns(double time, i32 interval) const {
  if (some(&Piece::isPin)) return infinity;
  const double drawn = std::floor(time / interval) + 1;
  return some(&Piece::isBauble) ? drawn * (1 + baubleSpawns) : drawn;
}

double LevelReach::mostPieces(const std::string& name, double time, i32 interval) const {
  double most = 1;
  for (const Piece& piece : pieces_) {
    if (name == "Gorgon" && piece.isGorgon == True) most = std::max(most, brood(piece, time));
  }
  return most * spawns(time, interval);
}

bool LevelReach::hasCocktails() const {
  bool all = some(&Piece::isBomb);
  for (const i16 kind : {1, 2, 3, 4}) {
    all = all && some([kind](const Piece& piece) {
            return piece.name == "Glonk" && piece.variety == kind;
          });
  }
  return all;
}

double LevelReach::mostPoints(double time, i32 interval) const {
  const double count = spawns(time, interval);
  const bool cocktails = hasCocktails();
  double best = 0;
  for (const Piece& piece : pieces_) {
    double points = std::abs(static_cast<double>(piece.value));
    if (piece.isBomb == True) points += points + (cocktails ? cocktailPoints : 0);
    if (piece.name == "Glonk" && cocktails) points += fruitPoints * count / cocktailPieces;
    if (piece.isDiamond == True) points += diamondPoints;
    if (piece.isBauble == True) points += baublePoints;
    if (piece.isCalculator == True) points += mostCalculated * (1 + timesUp(piece, time));
    if (piece.slammable == True && some(&Piece::isSlammer)) points += slamPoints;
    if (piece.isSlammer == True) points += slammerPoints;
    if (piece.isGorgon == True) points *= brood(piece, time);
    best = std::max(best, points);
  }
  const double bonus = some(&Piece::isCalculator) ? pythagoreanPoints : 0;
  return count * best + bonus + timePoints * std::floor(time / timePointsPeriod);
}

}  // namespace glonks
