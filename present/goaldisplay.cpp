#include "present/goaldisplay.h"

#include <string>

#include "base/text.h"
#include "game/model/model.h"
#include "present/screen/display.h"
#include "rules/levelgoals.h"

namespace glonks {
namespace {

constexpr i32 linesX = 85;
constexpr i32 firstLineY = 26;
constexpr i32 linePitch = 15;

void drawLine(i32 y, const std::string& text) { backBuffer->DrawText(linesX, y, text, False); }

void drawCount(i32 y, const std::string& name, i16 count) {
  drawLine(y, name + "s:  " + signedNumber(count));
}

void drawTime(i32 y, i16 minutes) {
  const i32 seconds = secondsLeft();
  drawLine(
      y, "Time: " + plainNumber(minutes) + ":" + (seconds < 10 ? "0" : "") + plainNumber(seconds));
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
    testAvoidGoal();
  }
  if (goalPieceCount > -1) {
    drawCount(line, goalPieceName, goalPieceCount);
    line += linePitch;
  }
  if (goalScore > -1) {
    drawLine(line, "Score: " + signedNumber(score) + "/" + signedNumber(goalScore));
    line += linePitch;
  }
  if (limitOn == True && levelOver == False) {
    stepLimit();
    drawTime(line, limitMinutes);
  }
  if (surviveOn == True && levelOver == False) {
    stepSurvival();
    drawTime(line, surviveMinutes);
  }
}

}  // namespace glonks
