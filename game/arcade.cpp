#include "game/arcade.h"

#include <set>

#include "base/errors.h"
#include "game/model/model.h"
#include "game/playloop.h"
#include "present/effects/applause.h"
#include "present/effects/ticker.h"
#include "present/goaldisplay.h"
#include "present/screen/display.h"
#include "rules/generation.h"
#include "rules/levelgoals.h"
#include "storage/files/log.h"

namespace glonks {
namespace {

constexpr i32 titleX = 315;
constexpr i32 titleY = 33;

// What the statements of this game have raised so far.
std::set<std::string> failures;

// Goes on after a statement that fails; each kind of failure stands once in the log.
void runOnAfterFailure(Statement statement) {
  try {
    statement();
  } catch (const std::exception& error) {
    const std::string text = numberAndText(error);
    if (failures.insert(text).second) logStep("play - a step failed: " + text);
  }
}

void drawTitle() { backBuffer->DrawText(titleX, titleY, levelTitle, False); }

void win() {
  runOnAfterFailure([] { pushMessage("victory!"); });
  runOnAfterFailure(applause);
  levelOver = True;
  levelWon = True;
}

// Once the level is decided, the game ends when the ticker is empty. Oddity 24: with a survival
// timer the test runs the other way, so that an open goal wins such a level at once.
void testOutcome() {
  if (endOnceDecided()) return;
  if (surviveOn == False ? goalsMet() == True : goalsMet() == False) win();
}

}  // namespace

void playArcade() {
  failures.clear();
  runLoop({.run = runOnAfterFailure,
           .start = {[] { levelOver = False; }},
           .spawn = spawnPiece,
           .texts = {drawTitle, drawGoals},
           .endOfFrame = {testOutcome}});
}

}  // namespace glonks
