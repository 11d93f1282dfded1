#include "present/goaldisplay.h"

#include <string>

#include "base/text.h"
#include "game/model/goallines.h"
#include "game/model/model.h"
#include "present/screen/display.h"
#include "rules/levelgoals.h"

namespace glonks {
namespace {

constexpr i32 linesX = 85;
constexpr i32 firstLineY = 26;
constexpr i32 linePitch = 15;

void drawLine(i32 y, const std::string& text) { backBuffer->DrawText(linesX, y, text, False); }

void drawTime(i32 y, i16 minutes) {
  const i32 seconds = secondsLeft();
  drawLine(
      y, "Time: " + plainNumber(minutes) + ":" + (seconds < 10 ? "0" : "") + plainNumber(seconds));
}

}  // namespace

void drawGoals() {
  i32 line = firstLineY;
  // Oddity 20: these two lie over each other, and so do the two timers.
  if (landOn == True) {
    drawLine(firstLineY, countLine(landName, landLeft));
    line = firstLineY + linePitch;
  }
  if (avoidOn == True) {
    drawLine(firstLineY, countLine(avoidName, avoidLeft));
    line = firstLineY + linePitch;
    testAvoidGoal();
  }
  if (goalPieceCount > -1) {
    drawLine(line, countLine(goalPieceName, goalPieceCount));
    line += linePitch;
  }
  if (goalScore > -1) {
    drawLine(line, scoreLine(score, goalScore));
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
