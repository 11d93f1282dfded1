#include "storage/progress.h"

#include <algorithm>
#include <string>
#include <vector>

#include "game/model.h"
#include "game/text.h"
#include "shell/menucontrols.h"
#include "shell/toolkit/toolkit.h"
#include "storage/fieldreader.h"
#include "storage/playerfiles.h"
#include "storage/scrambledfiles.h"
#include "storage/textchannels.h"

namespace glonks {
namespace {

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

void awardLevel() {
  const auto& open = tLevels.items;
  if (std::find(open.begin(), open.end(), rewardLevelName) != open.end()) return;
  messageBox("Congratulations!  You have been awarded a new level for Arcade mode!");
  std::vector<std::string> lines = linesOfLevels();
  lines.push_back(rewardLevelName);
  lines.push_back(signedNumber(rewardLevelFile) + " ");
  writePlayersFile(levelsFile, [&lines] {
    for (const std::string& line : lines) writeLine(ScrambledWriter::channel, line);
  });
  addItem(tLevels, rewardLevelName, rewardLevelFile);
  tellOfNewFiles();
}

}  // namespace glonks
