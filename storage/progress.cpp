#include "storage/progress.h"

#include <limits>

#include "base/text.h"
#include "storage/files/fieldreader.h"
#include "storage/files/scrambledfiles.h"
#include "storage/files/textchannels.h"
#include "storage/playerfiles.h"

namespace glonks {
namespace {

std::vector<OpenLevel> readList() {
  std::vector<OpenLevel> levels;
  while (!endOfFile(playersChannel)) {
    const std::string name = readLine(playersChannel, "level name");
    const std::string field = "number of level \"" + name + "\"";
    const std::string number = readLine(playersChannel, field);
    if (!isNumber(number)) badField(playersChannel, field, "isn't a number.");
    using Whole = std::numeric_limits<i32>;
    levels.push_back({name, roundedField(playersChannel, field, leadingNumber(number), Whole::min(),
                                         Whole::max())});
  }
  if (levels.empty()) badField(playersChannel, "level name", "is missing.");
  return levels;
}

std::vector<std::string> linesOfLevels() {
  std::vector<std::string> lines;
  readPlayersFile(levelsFile, [&lines] {
    lines.clear();
    while (!endOfFile(playersChannel)) lines.push_back(readLine(playersChannel));
    if (lines.empty() || lines.size() % 2 != 0) {
      badField(playersChannel, "number of the last level", "is missing.");
    }
  });
  return lines;
}

}  // namespace

std::vector<OpenLevel> readOpenLevels() {
  std::vector<OpenLevel> levels;
  readPlayersFile(levelsFile, [&levels] { levels = readList(); });
  return levels;
}

void addOpenLevel(const OpenLevel& level) {
  std::vector<std::string> lines = linesOfLevels();
  lines.push_back(level.name);
  lines.push_back(signedNumber(level.file) + " ");
  writePlayersFile(levelsFile, [&lines] {
    for (const std::string& line : lines) writeLine(ScrambledWriter::channel, line);
  });
}

}  // namespace glonks
