#include "storage/scores.h"

#include <algorithm>

#include "base/text.h"
#include "storage/playerfiles.h"

namespace glonks {
namespace {

i32 pointsOf(const std::string& line) { return storedNumber(fieldOf(line, 0)); }

// Puts beginners' scores, the lowest first, in the place of those that are lost.
void fillTable(Lines& table, const Lines& first) {
  for (auto line = first.rbegin(); line != first.rend() && table.size() < highScoreCount; ++line) {
    if (std::find(table.begin(), table.end(), *line) != table.end()) continue;
    const auto place = std::find_if(table.begin(), table.end(), [&](const std::string& other) {
      return pointsOf(other) < pointsOf(*line);
    });
    table.insert(place, *line);
  }
  table.resize(highScoreCount, "0,");
}

bool isGood(const std::string& line, bool strict) {
  const std::size_t comma = line.find(',');
  return comma != std::string::npos && isGoodText(line) &&
         isGoodNumber(line.substr(0, comma), strict);
}

// In a damaged file a line that is too many may stand among the others.
Sifted siftScores(const Lines& lines, const Lines& first, bool strict) {
  Sifted sifted;
  const std::size_t end = strict ? lines.size() : std::min(lines.size(), highScores.size());
  for (std::size_t i = 0; i < end && sifted.lines.size() < highScores.size(); ++i) {
    if (isGood(lines[i], strict)) sifted.lines.push_back(lines[i]);
  }
  sifted.kept = static_cast<i32>(sifted.lines.size());
  sifted.lost = highScoreCount - sifted.kept;
  fillTable(sifted.lines, first);
  return sifted;
}

}  // namespace

void readScores() {
  const Lines lines = readPlayersFile(scoresFile, siftScores);
  for (std::size_t i = 0; i < highScores.size(); ++i) {
    highScores[i] = {storableText(fieldOf(lines[i], 1)), pointsOf(lines[i])};
  }
}

void writeScores() {
  Lines lines;
  for (const HighScore& entry : highScores) {
    lines.push_back(plainNumber(entry.points) + "," + entry.playerName);
  }
  writePlayersFile(scoresFile, lines);
}

i16 placeOfScore(i32 points) {
  const auto place = std::find_if(highScores.begin(), highScores.end(),
                                  [&](const HighScore& entry) { return points >= entry.points; });
  return static_cast<i16>(place - highScores.begin());
}

void insertScore(i16 place, i32 points) {
  auto* const at = highScores.begin() + place;
  std::move_backward(at, highScores.end() - 1, highScores.end());
  *at = {"", points};
}

void nameScore(i16 place, const std::string& name) {
  highScores[static_cast<std::size_t>(place)].playerName = storableText(name);
}

}  // namespace glonks
