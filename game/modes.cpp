#include "game/modes.h"

#include "game/arcade.h"
#include "game/freestyle.h"
#include "storage/files/datafiles.h"

namespace glonks {
namespace {

const std::string nothingToSelect = "No levels to select.  Just click Play!";

const Mode table[] = {
    {.modeTitle = "Freestyle",
     .modeDescription =
         "Freestyle is the ultimate Glonk dance party.  Every piece makes an appearance, and your "
         "only goal is that elusive high score.",
     .levelItems = {nothingToSelect},
     .framePicture = "frame",
     .loop = play,
     .levelFile = freestyleLevel,
     .counter = Counter::stock,
     .itemKeys = True,
     .scoreTable = True},
    // Oddity 8: the item keys work here too, though no counter shows the stock.
    {.modeTitle = "Arcade",
     .modeDescription =
         "Every level challenges you with new situations and new goals.  How far can you go?",
     .framePicture = "frameA",
     .loop = playArcade,
     .hasGoals = True,
     .itemKeys = True},
    {.modeTitle = "B-Type",
     .modeDescription =
         "B-Type begins with pieces already in play.  Your goal is to eliminate a given number of "
         "pieces before you bail.",
     .levelItems = {"Mild", "Medium", "Spicy"},
     .framePicture = "frameB",
     .counter = Counter::pieces},
    {.modeTitle = "Midnight Bowling", .levelItems = {nothingToSelect}, .framePicture = "frameM"},
};

}  // namespace

std::vector<Mode> offeredModes() {
  std::vector<Mode> offered;
  for (const Mode& mode : table) {
    if (!mode.modeDescription.empty()) offered.push_back(mode);
  }
  return offered;
}

Mode modeTitled(const std::string& title) {
  for (const Mode& mode : table) {
    if (mode.modeTitle == title) return mode;
  }
  return {};
}

}  // namespace glonks
