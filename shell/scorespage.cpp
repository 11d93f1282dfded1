#include "shell/scorespage.h"

#include <string>

#include "base/text.h"
#include "game/model/model.h"
#include "shell/menucontrols.h"
#include "shell/pages.h"
#include "shell/saving.h"
#include "shell/toolkit/toolkit.h"
#include "storage/scores.h"

namespace glonks {
namespace {

// The row of the list for the entry in a place, counted from 1. The tab begins the names' column.
std::string rowOf(i32 place, const HighScore& entry) {
  const std::string number = (place < 10 ? "0" : "") + plainNumber(place);
  return number + ".    " + plainNumber(entry.points) + "   " + "\t" + entry.playerName;
}

void listScores() {
  clearItems(scores_freestyle);
  i32 place = 0;
  for (const HighScore& entry : highScores) addItem(scores_freestyle, rowOf(++place, entry));
}

}  // namespace

void mScores_Click() { showPage(scoresPage); }

void scoreModes_Click() { scores_freestyle.visible = flagOf(textOf(scoreModes) == "Freestyle"); }

void loadScores() {
  readScores();
  listScores();
}

void saveScores() { save(scoresFile); }

void enterHighScore() {
  const i16 place = placeOfScore(score);
  if (place == highScoreCount) return;
  keepScore();
  saveSilently();
  const std::string name = inputBox(
      "Congratulations!  " + plainNumber(score) + " is a new high score!  Please enter your name.",
      longestStoredText);
  nameScore(place, name);
  saveScores();
  if (!isOwed(scoresFile)) succeeds(readScores);
  listScores();
  mScores_Click();
  setText(scoreModes, "Freestyle");
}

void keepScore() {
  const i16 place = placeOfScore(score);
  if (place == highScoreCount) return;
  insertScore(place, score);
  owe(scoresFile);
}

}  // namespace glonks
