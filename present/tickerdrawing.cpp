#include "present/tickerdrawing.h"

#include "game/model/model.h"
#include "present/screen/display.h"

namespace glonks {
namespace {

constexpr Rect glyphSource{0, 0, 50, 50};
constexpr i32 tickerTop = 365;
constexpr i16 tickerStep = 14;  // pixels a frame, to the left

}  // namespace

void drawTicker() {
  keepIf(tickerLines, tickerUpper, [](const TickerGlyph& letter) { return letter.x > tickerStep; });
  for (TickerGlyph& letter : tickerLines) {
    letter.x = static_cast<i16>(letter.x - tickerStep);
    backBuffer->Blt(
        {letter.x, tickerTop, letter.x + glyphSource.right, tickerTop + glyphSource.bottom},
        letter.glyph, glyphSource, bltKeyed);
  }
}

}  // namespace glonks
