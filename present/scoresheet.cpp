#include "present/scoresheet.h"

#include <string>

#include "base/text.h"
#include "game/model/model.h"
#include "present/screen/display.h"
#include "rules/bowlingscore.h"

namespace glonks {
namespace {

// Places in the frame picture.
constexpr i32 sheetLeft = 84;
constexpr i32 framePitch = 68;
constexpr i32 marksX = 31;  // from a frame's left edge
constexpr i32 lastMarksX = 35;
constexpr i32 markPitch = 22;
constexpr i32 marksY = 12;
constexpr i32 totalX = 22;
constexpr i32 lastTotalX = 35;
constexpr i32 totalY = 37;

// Pixels by which a mark stands more to the right than a digit does, to be in the middle.
i32 shiftOf(char mark) { return mark == 'X' ? -2 : mark == '/' || mark == '-' ? 2 : 0; }

}  // namespace

void drawScoreSheet() {
  const BowlingGame game = bowlingGame(bowlingRolls);
  i32 left = sheetLeft;
  for (const BowlingFrame& frame : game.frames) {
    const bool last = &frame == &game.frames.back();
    i32 x = left + (last ? lastMarksX : marksX);
    // A strike stands in the second place, but for the last frame, which goes on after it.
    if (frame.marks == "X" && !last) x += markPitch;
    for (const char mark : frame.marks) {
      backBuffer->DrawText(x + shiftOf(mark), marksY, std::string(1, mark), False);
      x += markPitch;
    }
    if (frame.total >= 0) {
      backBuffer->DrawText(left + (last ? lastTotalX : totalX), totalY, plainNumber(frame.total),
                           False);
    }
    left += framePitch;
  }
}

}  // namespace glonks
