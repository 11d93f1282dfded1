#include "tests/headless/recordedgame.h"

#include <fstream>
#include <map>
#include <sstream>
#include <string>

#include "base/errors.h"
#include "player/player.h"

namespace glonks {
namespace {

const std::map<std::string, i32> keyCodes = {
    {"Up", keyUp}, {"Down", keyDown}, {"Left", keyLeft}, {"Right", keyRight}};

// Takes one line into the game; false if it is none of its lines.
bool take(const std::string& line, RecordedGame& game) {
  std::istringstream words(line);
  std::string first, second, rest;
  words >> first >> second;
  if (words >> rest) return false;
  try {
    if (first == "seed") return (game.seed = std::stoi(second)) > 0;
    if (first == "length") return (game.length = std::stoi(second)) > 0;
    game.keys.push_back({std::stoi(first), keyCodes.at(second)});
    return true;
  } catch (const std::logic_error&) {
    return false;
  }
}

}  // namespace

RecordedGame readRecordedGame(const std::filesystem::path& path) {
  std::ifstream file(path);
  if (!file) {
    throw RuntimeError(ErrorNumber::fileNotFound, path.string() + " can't be opened.");
  }
  RecordedGame game;
  std::string line;
  for (i32 number = 1; std::getline(file, line); ++number) {
    if (take(line, game)) continue;
    throw RuntimeError(ErrorNumber::badFile, path.string() + ", line " + std::to_string(number) +
                                                 ": no line of a recorded game: " + line);
  }
  return game;
}

void writeRecordedGame(const std::filesystem::path& path, const RecordedGame& game) {
  std::ofstream file(path);
  file << "seed " << game.seed << "\nlength " << game.length << "\n";
  for (const auto& [time, pressed] : game.keys) {
    for (const auto& [name, code] : keyCodes) {
      if (code == pressed) file << time << " " << name << "\n";
    }
  }
  file.close();
  if (!file) throw RuntimeError(ErrorNumber::fileAccess, path.string() + " can't be written.");
}

}  // namespace glonks
