#include "rules/levelgoals.h"

#include <cmath>

#include "game/model/gametick.h"
#include "game/model/model.h"
#include "present/effects/applause.h"
#include "present/effects/ticker.h"

namespace glonks {
namespace {

constexpr double msPerSecond = 1000;

bool hasPieceGoal() { return goalPieceName != noName && goalPieceName != nothingName; }

// Whether a timer counts as over for the goals. They look at the seconds of the level's file, which
// nothing counts down, so that only negative ones make it so: from the last minute on.
bool countsAsOver(i16 minutes, i16 seconds) { return seconds < 0 && minutes <= 0; }

// Oddity 23: a timer runs out only in a frame of its last second. One that begins with no minutes,
// or whose last second passes without a frame, never does.
bool hasRunOut(i16 minutes) { return secondsLeft() == 0 && minutes == 0; }

// Oddity 21: both timers of a level share minuteStart, so the time limit, which is looked at first,
// takes all the minutes.
void stepMinute(i16& minutes) {
  if (secondsLeft() >= 0) return;
  minuteStart = gameTick();
  countDown(minutes);
}

}  // namespace

Flag goalsMet() {
  if (hasPieceGoal() && goalPieceCount > 0) return False;
  if (limitOn == True && countsAsOver(limitMinutes, limitSeconds)) return False;
  if (landOn == True && landLeft > 0) return False;
  if (goalScore != -1 && goalScore > score) return False;
  if (surviveOn == True && countsAsOver(surviveMinutes, surviveSeconds)) return False;
  if (avoidOn == True && avoidLeft <= 0) return False;
  return True;
}

void testAvoidGoal() {
  if (levelOver != False || avoidLeft > 0) return;
  levelOver = True;
  pushMessage("failed!");
}

void stepLimit() {
  if (hasRunOut(limitMinutes)) {
    levelOver = True;
    pushMessage("Time expired");
  }
  stepMinute(limitMinutes);
}

void stepSurvival() {
  if (hasRunOut(surviveMinutes)) {
    levelOver = True;
    levelWon = True;
    pushMessage("Victory!");
    applause();
  }
  stepMinute(surviveMinutes);
}

// Oddity 22: the seconds of the level's file only switch a timer on; each minute begins at 59.
i32 secondsLeft() {
  const double passed = (static_cast<double>(gameTick()) - minuteStart) / msPerSecond;
  return 59 - static_cast<i32>(std::floor(passed));
}

}  // namespace glonks
