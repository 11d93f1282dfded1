#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iostream>
#include <optional>
#include <string>

#include "game/loading/levels.h"
#include "game/modes.h"
#include "player/player.h"
#include "tests/headless/headlessgame.h"
#include "tests/headless/recordedgame.h"

// Records a won game of each Arcade level, the shortest of some, for the tests to replay, and names
// the levels for which it finds none. record_wins <game folder> <folder of the records>
namespace {

using namespace glonks;

constexpr i32 mostGames = 100;  // before a level counts as one that can't be won
constexpr i32 wins = 5;         // of which the shortest is taken

std::optional<RecordedGame> shortestWin(i32 level) {
  std::optional<RecordedGame> shortest;
  i32 won = 0;
  for (i32 seed = 1; seed <= mostGames && won < wins; ++seed) {
    Player player(good);
    const HeadlessResult result =
        playHeadless({modeTitled("Arcade"), level, 0, seed}, [&](i32) { return player.nextKey(); });
    if (result.ending != Ending::won) continue;
    ++won;
    if (!shortest || result.length < shortest->length) {
      shortest = RecordedGame{seed, result.length, result.keys};
    }
  }
  return shortest;
}

// False if there is no win.
bool record(i32 level, const std::filesystem::path& folder) {
  const auto game = shortestWin(level);
  const std::string title = readLevelHead(levelPath(level)).title;
  std::cout << level << "  " << title << ": ";
  if (game) {
    std::cout << "won in " << game->length / 1000 << " s, seed " << game->seed << std::endl;
    writeRecordedGame(folder / (std::to_string(level) + ".txt"), *game);
  } else {
    std::cout << "NO WIN in " << mostGames << " games" << std::endl;
  }
  return game.has_value();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: record_wins <game folder> <folder of the records>\n";
    return EXIT_FAILURE;
  }
  try {
    const std::filesystem::path folder = std::filesystem::absolute(argv[2]);
    setUpHeadless(argv[1]);
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder);
    i32 missing = 0;
    for (const i32 level : arcadeChain()) missing += record(level, folder) ? 0 : 1;
    if (missing == 0) return EXIT_SUCCESS;
    std::cout << missing << " levels without a win\n";
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
  }
  return EXIT_FAILURE;
}
