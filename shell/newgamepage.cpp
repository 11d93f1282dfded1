#include "shell/newgamepage.h"

#include <algorithm>
#include <string>

#include "game/loading/levels.h"
#include "game/model/model.h"
#include "game/modes.h"
#include "shell/goalwords.h"
#include "shell/menucontrols.h"
#include "shell/pages.h"
#include "shell/saving.h"
#include "shell/toolkit/toolkit.h"
#include "storage/progress.h"

namespace glonks {
namespace {

constexpr i16 modeSlots = 4;

// Told with the lists too, for those who can't see it beside them.
void describe(const std::string& words) {
  tModeDesc.caption = tMode.description = tLevels.description = words;
}

}  // namespace

void mNew_Click() { showPage(newGamePage); }

void Image6_Click() { mNew_Click(); }

void listModes() {
  const std::string picked = textOf(tMode);
  modes = offeredModes();
  clearItems(tMode);
  for (const Mode& mode : modes) {
    addItem(tMode, mode.modeTitle);
    if (mode.modeTitle == picked) tMode.listIndex = static_cast<i16>(tMode.items.size() - 1);
  }
  modes.resize(modeSlots);  // those behind are free
  modesUpper = modeSlots - 1;
  if (tMode.listIndex == -1) tMode_Click();
}

void popModes() {
  listModes();
  clearItems(scoreModes);
  for (const Mode& mode : modes) {
    if (mode.scoreTable == True) addItem(scoreModes, mode.modeTitle);
  }
  setListIndex(scoreModes, 0);
}

void tMode_Click() {
  clearItems(tLevels);
  const Mode mode = modeTitled(textOf(tMode));
  describe(mode.modeDescription);
  for (const std::string& item : mode.levelItems) addItem(tLevels, item);
  if (mode.hasGoals == True) {
    succeeds(readOpenLevels);
    for (const OpenLevel& level : openLevels) addItem(tLevels, level.name, level.file);
    tellOfNewFiles();
  }
}

void tLevels_Click() {
  const Mode mode = modeTitled(textOf(tMode));
  describe(mode.modeDescription);
  if (mode.hasGoals != True) return;
  succeeds([] {
    const i32 file = tLevels.itemData[static_cast<std::size_t>(tLevels.listIndex)];
    const std::string words = goalWords(readLevelHead(levelPath(file)));
    if (!words.empty()) describe(words);
  });
}

void awardLevel() {
  if (!keepLevel()) return;
  saveSilently();
  messageBox("Congratulations!  You have been awarded a new level for Arcade mode!");
  if (isOwed(levelsFile)) save(levelsFile);
  tellOfNewFiles();
}

bool keepLevel() {
  const auto& open = tLevels.items;
  if (std::find(open.begin(), open.end(), rewardLevelName) != open.end()) return false;
  addOpenLevel({rewardLevelName, rewardLevelFile});
  addItem(tLevels, rewardLevelName, rewardLevelFile);
  owe(levelsFile);
  return true;
}

}  // namespace glonks
