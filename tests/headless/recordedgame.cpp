#include "tests/headless/recordedgame.h"

#include <array>
#include <fstream>
#include <sstream>
#include <string>
#include <utility>

#include "base/errors.h"
#include "player/player.h"

namespace glonks {
namespace {

constexpr std::array<std::pair<i32, const char*>, 4> keyNames = {
    {{keyUp, "Up"}, {keyDown, "Down"}, {keyLeft, "Left"}, {keyRight, "Right"}}};

// 0 for a name that no key has.
i32 codeOf(const std::string& name) {
  for (const auto& [code, other] : keyNames) {
    if (name == other) return code;
  }
  return 0;
}

std::string nameOf(i32 code) {
  for (const auto& [other, name] : keyNames) {
    if (code == other) return name;
  }
  return "?";
}

// Takes one line into the game; false if it is none of its lines.
bool take(const std::string& line, RecordedGame& game) {
  std::istringstream words(line);
  std::string first, second, rest;
  words >> first >> second;
  if (words >> rest) return false;
  try {
    if (first == "seed") return (game.seed = std::stoi(second)) > 0;
    if (first == "length") return (game.length = std::stoi(second)) > 0;
    game.keys.push_back({std::stoi(first), codeOf(second)});
    return game.keys.back().code != 0;
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
  for (const PressedKey& key : game.keys) file << key.time << " " << nameOf(key.code) << "\n";
  file.close();
  if (!file) throw RuntimeError(ErrorNumber::fileAccess, path.string() + " can't be written.");
}

}  // namespace glonks
