#include "shell/modes.h"

#include <limits>
#include <utility>

#include "game/text.h"
#include "shell/menucontrols.h"
#include "storage/fieldreader.h"
#include "storage/playerfiles.h"
#include "storage/textchannels.h"

namespace glonks {
namespace {

constexpr i16 listedModes = 3;
const std::string nothingToSelect = "No levels to select.  Just click Play!";

// All levels of the file, before the list shows any.
void readOpenLevels() {
  std::vector<std::pair<std::string, i32>> levels;
  while (!endOfFile(playersChannel)) {
    const std::string name = readLine(playersChannel, "level name");
    const std::string field = "number of level \"" + name + "\"";
    const std::string number = readLine(playersChannel, field);
    if (!isNumber(number)) badField(playersChannel, field, "isn't a number.");
    using Whole = std::numeric_limits<i32>;
    levels.emplace_back(name, roundedField(playersChannel, field, leadingNumber(number),
                                           Whole::min(), Whole::max()));
  }
  if (levels.empty()) badField(playersChannel, "level name", "is missing.");
  for (const auto& [name, number] : levels) addItem(tLevels, name, number);
}

}  // namespace

void popModes() {
  modesUpper = 3;
  modes.resize(static_cast<std::size_t>(modesUpper) + 1);
  modes[0] = {"Freestyle",
              "Freestyle is the ultimate Glonk dance party.  Every piece makes an appearance, and "
              "your only goal is that elusive high score."};
  modes[1] = {"Arcade",
              "Every level challenges you with new situations and new goals.  How far can you go?"};
  modes[2] = {"B-Type",
              "B-Type begins with pieces already in play.  Your goal is to eliminate a given "
              "number of pieces before you bail."};
  clearItems(tMode);
  for (std::size_t slot = 0; slot < listedModes; ++slot) addItem(tMode, modes[slot].modeTitle);
  clearItems(scoreModes);
  addItem(scoreModes, modes[0].modeTitle);
  setListIndex(scoreModes, 0);
}

void tMode_Click() {
  const std::string mode = textOf(tMode);
  clearItems(tLevels);
  for (const Mode& known : modes) {
    if (known.modeTitle == mode) tModeDesc.caption = known.modeDescription;
  }
  if (mode == "Freestyle" || mode == "Midnight Bowling") addItem(tLevels, nothingToSelect);
  if (mode == "B-Type") {
    for (const char* level : {"Mild", "Medium", "Spicy"}) addItem(tLevels, level);
  }
  if (mode == "Arcade") {
    readPlayersFile(levelsFile, readOpenLevels);
    tellOfNewFiles();
  }
}

}  // namespace glonks
