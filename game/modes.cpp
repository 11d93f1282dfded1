#include "game/modes.h"

#include "game/arcade.h"
#include "game/btype.h"
#include "game/freestyle.h"
#include "game/midnightbowling.h"
#include "game/model/model.h"
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
     .levelFiles = {freestyleLevel},
     .loop = play,
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
     .levelFiles = {bTypeLevels.begin(), bTypeLevels.end()},
     .setUp = setUpBType,
     .loop = playBType,
     .outcome = bTypeOutcome,
     .counter = Counter::pieces},
    {.modeTitle = "Midnight Bowling",
     .modeDescription =
         "Ten pins, ten frames, and a moon to see by.  Slide the pins to where the ball comes "
         "down, and knock over all you can.",
     .levelItems = {nothingToSelect},
     .framePicture = "frameM",
     .setUp = setUpBowling,
     .loop = playBowling,
     .outcome = bowlingOutcome,
     .ticket = midnightBowlingItem},
};

}  // namespace

std::vector<Mode> offeredModes() {
  std::vector<Mode> offered;
  for (const Mode& mode : table) {
    if (mode.ticket < 0 || stockOf(mode.ticket) > 0) offered.push_back(mode);
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
