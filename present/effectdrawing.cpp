#include "present/effectdrawing.h"

#include "base/text.h"
#include "game/model/model.h"
#include "game/model/resources.h"
#include "present/screen/display.h"

namespace glonks {
namespace {

constexpr i32 effectOrigin = 190;  // from effect coordinates to the screen

constexpr Rect explosionSource{0, 0, 300, 300};
constexpr i16 impactStep = 50;  // ages a frame
constexpr i16 impactEnd = 300;

constexpr Rect zapSource{0, 0, 80, 80};
constexpr i16 zapStep = 25;
constexpr i16 zapEnd = 80;
constexpr i32 zapCentre = 40;  // pixels from x or y, across the bar
constexpr i32 zapLeft = -15;   // ends of a horizontal bar from x
constexpr i32 zapRight = 70;
constexpr i32 zapBottom = 95;  // lower end of a vertical bar from y, where it begins

constexpr i16 popupStep = 10;  // pixels a frame, upward
constexpr i16 popupEnd = -180;

void drawImpact(const Impact& impact) {
  const i32 half = impact.age / 2;
  const i32 x = impact.x + effectOrigin;
  const i32 y = impact.y + effectOrigin;
  backBuffer->Blt({x - half, y - half, x + half, y + half}, explosionSurface, explosionSource,
                  bltKeyed);
}

// A bar of fixed length that swells across it.
void drawZap(const Zap& zap) {
  const i32 half = zap.age / 2;
  if (zap.horizontal == True) {
    const i32 centre = zap.y + zapCentre;
    backBuffer->Blt({zap.x + zapLeft, centre - half, zap.x + zapRight, centre + half}, zapHSurface,
                    zapSource, bltKeyed);
  } else {
    const i32 centre = zap.x + zapCentre;
    backBuffer->Blt({centre - half, zap.y, centre + half, zap.y + zapBottom}, zapVSurface,
                    zapSource, bltKeyed);
  }
}

}  // namespace

void drawImpacts() {
  for (Impact& impact : impacts) {
    drawImpact(impact);
    impact.age = static_cast<i16>(impact.age + impactStep);
  }
  keepIf(impacts, impactsUpper, [](const Impact& impact) { return impact.age < impactEnd; });
}

void drawZaps() {
  for (Zap& zap : zaps) {
    drawZap(zap);
    zap.age = static_cast<i16>(zap.age + zapStep);
  }
  keepIf(zaps, zapsUpper, [](const Zap& zap) { return zap.age < zapEnd; });
}

void drawPopups() {
  for (ScorePopup& popup : scorePopups) {
    backBuffer->DrawText(popup.x + effectOrigin, popup.y + effectOrigin, signedNumber(popup.points),
                         False);
    popup.y = clamped<i16>(i32{popup.y} - popupStep);
  }
  // Oddity 17: points count only when their popup has climbed out. Those that still climb when a
  // game ends are lost.
  for (const ScorePopup& popup : scorePopups) {
    if (popup.y <= popupEnd) payScore(popup.points);
  }
  keepIf(scorePopups, scorePopupsUpper, [](const ScorePopup& popup) { return popup.y > popupEnd; });
}

}  // namespace glonks
