#include "storage/scores.h"

#include <algorithm>
#include <limits>

#include "base/text.h"
#include "storage/files/fieldreader.h"
#include "storage/files/scrambledfiles.h"
#include "storage/files/textchannels.h"
#include "storage/playerfiles.h"

namespace glonks {
namespace {

void readTable() {
  using Points = std::numeric_limits<i32>;
  std::array<HighScore, highScoreCount> table;
  i32 place = 0;
  for (HighScore& entry : table) {
    const std::string which = " of entry " + plainNumber(++place);
    entry.points = readWithin(playersChannel, "points" + which, Points::min(), Points::max());
    entry.playerName = storableText(readField(playersChannel, "playerName" + which));
  }
  highScores = table;
}

}  // namespace

void readScores() { readPlayersFile(scoresFile, readTable); }

void writeScores() {
  writePlayersFile(scoresFile, [] {
    for (const HighScore& entry : highScores) {
      writeLine(ScrambledWriter::channel, plainNumber(entry.points) + "," + entry.playerName);
    }
  });
}

i16 placeOfScore(i32 points) {
  const auto place = std::find_if(highScores.begin(), highScores.end(),
                                  [&](const HighScore& entry) { return points >= entry.points; });
  return static_cast<i16>(place - highScores.begin());
}

void insertScore(i16 place, const HighScore& entry) {
  auto* const at = highScores.begin() + place;
  std::move_backward(at, highScores.end() - 1, highScores.end());
  *at = {storableText(entry.playerName), entry.points};
}

}  // namespace glonks
