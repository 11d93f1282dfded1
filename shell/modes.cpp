#include "shell/modes.h"

#include "game/text.h"
#include "shell/menucontrols.h"
#include "storage/fieldreader.h"
#include "storage/scrambledfiles.h"
#include "storage/textchannels.h"

namespace glonks {
namespace {

constexpr i16 levelListChannel = 4;
constexpr i16 listedModes = 3;
const std::string nothingToSelect = "No levels to select.  Just click Play!";

void readOpenLevels() {
  ScrambledReader file("\\init\\6537", levelListChannel);
  while (!endOfFile(levelListChannel)) {
    addItem(tLevels, readLine(levelListChannel, "level name"));
    const std::string field = "number of level \"" + tLevels.items.back() + "\"";
    const std::string number = readLine(levelListChannel, field);
    if (!isNumber(number)) badField(levelListChannel, field, "isn't a number.");
    using Whole = std::numeric_limits<i32>;
    tLevels.itemData.back() =
        roundedField(levelListChannel, field, leadingNumber(number), Whole::min(), Whole::max());
  }
  file.close();
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
  if (mode == "Arcade") readOpenLevels();
}

}  // namespace glonks
