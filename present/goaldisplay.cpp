#include "present/goaldisplay.h"

#include <cmath>
#include <string>

#include "base/text.h"
#include "game/model/gametick.h"
#include "present/effects/applause.h"
#include "present/effects/ticker.h"
#include "present/screen/display.h"

namespace glonks {
namespace {

constexpr i32 linesX = 85;
constexpr i32 firstLineY = 26;
constexpr i32 linePitch = 15;
constexpr i32 msPerSecond = 1000;

void drawLine(i32 y, const std::string& text) { backBuffer->DrawText(linesX, y, text, False); }

void drawCount(i32 y, const std::string& name, i16 count) {
  drawLine(y, name + "s:  " + signedNumber(count));
}

// Seconds left of the running minute: 59 to 0, and below when it is over. An oddity that is kept:
// the seconds of the level's file only switch a timer on; each minute begins at 59.
i32 secondsLeft() {
  const double passed = (static_cast<double>(gameTick()) - minuteStart) / msPerSecond;
  return 59 - static_cast<i32>(std::floor(passed));
}

// An oddity that is kept: a timer runs out only in a frame of its last second. One that begins with
// no minutes, or whose last second passes without a frame, never does.
bool hasRunOut(i16 minutes) { return secondsLeft() == 0 && minutes == 0; }

// An oddity that is kept: both timers of a level share minuteStart, so the time limit, which is
// looked at first, takes all the minutes.
void stepMinute(i16& minutes) {
  if (secondsLeft() >= 0) return;
  minuteStart = gameTick();
  --minutes;
}

void drawTime(i32 y, i16 minutes) {
  const i32 seconds = secondsLeft();
  drawLine(
      y, "Time: " + plainNumber(minutes) + ":" + (seconds < 10 ? "0" : "") + plainNumber(seconds));
}

void failByAvoidGoal() {
  if (levelOver != False || avoidLeft >= 1) return;
  levelOver = True;
  pushMessage("failed!");
}

void stepLimit(i32 y) {
  if (hasRunOut(limitMinutes)) {
    levelOver = True;
    pushMessage("Time expired");
  }
  stepMinute(limitMinutes);
  drawTime(y, limitMinutes);
}

void stepSurvival(i32 y) {
  if (hasRunOut(surviveMinutes)) {
    levelOver = True;
    levelWon = True;
    pushMessage("Victory!");
    applause();
  }
  stepMinute(surviveMinutes);
  drawTime(y, surviveMinutes);
}

}  // namespace

void drawGoals() {
  i32 line = firstLineY;
  // An oddity that is kept: these two lie over each other, and so do the two timers.
  if (landOn == True) {
    drawCount(firstLineY, landName, landLeft);
    line = firstLineY + linePitch;
  }
  if (avoidOn == True) {
    drawCount(firstLineY, avoidName, avoidLeft);
    line = firstLineY + linePitch;
    failByAvoidGoal();
  }
  if (goalPieceCount > -1) {
    drawCount(line, goalPieceName, goalPieceCount);
    line += linePitch;
  }
  if (goalScore > -1) {
    drawLine(line, "Score: " + signedNumber(score) + "/" + signedNumber(goalScore));
    line += linePitch;
  }
  if (limitOn == True && levelOver == False) stepLimit(line);
  if (surviveOn == True && levelOver == False) stepSurvival(line);
}

}  // namespace glonks
