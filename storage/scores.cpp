#include "storage/scores.h"

#include <algorithm>
#include <limits>

#include "game/model.h"
#include "game/text.h"
#include "shell/fmain.h"
#include "shell/menucontrols.h"
#include "shell/toolkit/toolkit.h"
#include "storage/fieldreader.h"
#include "storage/playerfiles.h"
#include "storage/scrambledfiles.h"
#include "storage/textchannels.h"

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

// The row of the list for the entry in a place, counted from 1. The tab begins the names' column.
std::string rowOf(i32 place, const HighScore& entry) {
  const std::string number = (place < 10 ? "0" : "") + plainNumber(place);
  return number + ".    " + plainNumber(entry.points) + "   " + "\t" + entry.playerName;
}

}  // namespace

void loadScores() {
  clearItems(scores_freestyle);
  readPlayersFile(scoresFile, readTable);
  i32 place = 0;
  for (const HighScore& entry : highScores) addItem(scores_freestyle, rowOf(++place, entry));
}

void saveScores() {
  writePlayersFile(scoresFile, [] {
    for (const HighScore& entry : highScores) {
      writeLine(ScrambledWriter::channel, plainNumber(entry.points) + "," + entry.playerName);
    }
  });
}

void enterHighScore() {
  const auto place = std::find_if(highScores.begin(), highScores.end(),
                                  [](const HighScore& entry) { return score >= entry.points; });
  if (place == highScores.end()) return;
  const std::string name = inputBox(
      "Congratulations!  " + plainNumber(score) + " is a new high score!  Please enter your name.",
      longestStoredText);
  std::move_backward(place, highScores.end() - 1, highScores.end());
  *place = {storableText(name), score};
  saveScores();
  loadScores();
  mScores_Click();
  setText(scoreModes, "Freestyle");
}

}  // namespace glonks
