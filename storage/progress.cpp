#include "storage/progress.h"

#include <algorithm>

#include "base/text.h"
#include "storage/playerfiles.h"

namespace glonks {
namespace {

// In a damaged file a pair is found wherever a name has a number after it.
Sifted siftLevels(const Lines& lines, const Lines& first, bool strict) {
  Sifted sifted;
  std::size_t skipped = 0;
  for (std::size_t i = 0; i < lines.size();) {
    const bool good = i + 1 < lines.size() && isGoodText(lines[i]) && isGoodText(lines[i + 1]) &&
                      isGoodNumber(lines[i + 1], strict);
    if (good) {
      sifted.lines.insert(sifted.lines.end(), {lines[i], lines[i + 1]});
      ++sifted.kept;
    } else {
      ++skipped;
    }
    i += good ? 2 : 1;
  }
  sifted.lost = static_cast<i32>((skipped + 1) / 2);
  if (sifted.kept > 0) return sifted;
  sifted.lost = std::max(sifted.lost, 1);
  sifted.lines = first;
  return sifted;
}

}  // namespace

void readOpenLevels() {
  const Lines lines = readPlayersFile(levelsFile, siftLevels);
  openLevels.clear();
  for (std::size_t i = 0; i + 1 < lines.size(); i += 2) {
    openLevels.push_back({lines[i], storedNumber(lines[i + 1])});
  }
  openLevels.insert(openLevels.end(), newLevels.begin(), newLevels.end());
}

void addOpenLevel(const OpenLevel& level) {
  openLevels.push_back(level);
  newLevels.push_back(level);
}

void writeOpenLevels() {
  Lines lines = readPlayersFile(levelsFile, siftLevels);
  for (const OpenLevel& level : newLevels) {
    lines.insert(lines.end(), {level.name, signedNumber(level.file) + " "});
  }
  writePlayersFile(levelsFile, lines);
  newLevels.clear();
}

}  // namespace glonks
