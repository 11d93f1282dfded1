#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "game/loading/levels.h"
#include "game/model/gametick.h"
#include "game/model/model.h"
#include "game/modes.h"
#include "player/player.h"
#include "shell/goalwords.h"
#include "storage/files/datafiles.h"
#include "tests/headless/headlessgame.h"

// How hard the game is: two playing programs, and one that presses no key, play Freestyle, the
// grades of B-Type and each Arcade level some times. One line of comma-separated values for each of
// them and each player. bench_levels <game folder> [games] [mode or level's number] [player] [first
// seed]
namespace {

using namespace glonks;

struct Contest {
  std::string title;
  HeadlessGame game;
  std::string goal = {};
};

std::vector<Contest> allContests() {
  std::vector<Contest> all = {{"Freestyle", {modeTitled("Freestyle"), freestyleLevel}}};
  const Mode bType = modeTitled("B-Type");
  for (i16 item = 0; item < static_cast<i16>(bType.levelItems.size()); ++item) {
    const auto i = static_cast<std::size_t>(item);
    all.push_back({bType.levelItems[i], {bType, bType.levelFiles[i], item}});
  }
  for (const i32 level : arcadeChain()) {
    const LevelHead head = readLevelHead(levelPath(level));
    all.push_back({head.title, {modeTitled("Arcade"), level}, goalWords(head)});
  }
  return all;
}

// When each kind of piece that the level has an entry for had come at least once.
class Sightings {
 public:
  void look(i32 time) {
    if (allSeen_) return;
    for (const Piece& piece : fallingPieces) seen_.insert(piece.name);
    for (const Piece& piece : pieceCatalog) {
      if (piece.spawnHigh > 0 && seen_.count(piece.name) == 0) return;
    }
    allSeen_ = time;
  }
  std::optional<i32> allSeen() const { return allSeen_; }

 private:
  std::set<std::string> seen_;
  std::optional<i32> allSeen_;
};

struct Tally {
  std::map<Ending, i32> endings;
  std::vector<i32> points;
  double seconds = 0;
  double credits = 0;
  double notes = 0;
  i32 seenInTime = 0;  // games in which every kind had come within three minutes
};

void playGame(const HeadlessGame& game, const Strength& strength, Tally& tally) {
  constexpr i32 threeMinutes = 180'000;
  Player player(strength);
  Sightings sightings;
  const HeadlessResult result = playHeadless(game, [&](i32 time) {
    sightings.look(time);
    return player.nextKey();
  });
  ++tally.endings[result.ending];
  tally.points.push_back(score);
  tally.seconds += result.length / 1000.0;
  tally.credits += bank;
  tally.notes += notesCollected;
  if (sightings.allSeen().value_or(threeMinutes) < threeMinutes) ++tally.seenInTime;
}

void report(const Contest& contest, const Strength& strength, i32 games, i32 firstSeed) {
  using Clock = std::chrono::steady_clock;
  Tally tally;
  const auto start = Clock::now();
  for (i32 i = 0; i < games; ++i) {
    HeadlessGame game = contest.game;
    game.seed = firstSeed + i;
    playGame(game, strength, tally);
  }
  const std::chrono::duration<double> taken = Clock::now() - start;
  std::sort(tally.points.begin(), tally.points.end());
  double points = 0;
  for (const i32 each : tally.points) points += each;
  std::cout << contest.game.level << ',' << contest.title << ',' << contest.goal << ','
            << spawnInterval << ',' << strength.name << ',' << games;
  for (const Ending ending : {Ending::won, Ending::fullColumn, Ending::timeExpired,
                              Ending::avoidGoal, Ending::brokenOff}) {
    std::cout << ',' << tally.endings[ending];
  }
  std::cout << ',' << std::lround(tally.seconds / games) << ',' << std::lround(points / games)
            << ',' << tally.points[tally.points.size() * 2 / 3] << ',' << tally.credits / games
            << ',' << tally.notes / games << ',' << tally.seenInTime << ','
            << std::lround(tally.seconds / headlessFrameTime / taken.count()) << std::endl;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    std::cerr << "usage: bench_levels <game folder> [games] [mode or level's number] [player] "
                 "[first seed]\n";
    return EXIT_FAILURE;
  }
  const i32 games = argc > 2 ? std::max(1, std::atoi(argv[2])) : 10;
  const std::string what = argc > 3 ? argv[3] : "";
  const std::string who = argc > 4 ? argv[4] : "";
  const i32 firstSeed = argc > 5 ? std::atoi(argv[5]) : 1;
  try {
    setUpHeadless(argv[1]);
    std::cout
        << "level,title,goal,spawn interval,player,games,won,full column,time,avoid goal,broken "
           "off,mean seconds,"
           "mean points,points of the best third,mean credits,mean notes,all kinds in 3 minutes,"
           "thousand frames a second\n";
    for (const Contest& contest : allContests()) {
      const bool asked = what.empty() || what == contest.game.mode.modeTitle ||
                         what == std::to_string(contest.game.level);
      for (const Strength* strength : {&idle, &beginner, &good}) {
        if (asked && (who.empty() || who == strength->name)) {
          report(contest, *strength, games, firstSeed);
        }
      }
    }
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return EXIT_FAILURE;
  }
  return EXIT_SUCCESS;
}
