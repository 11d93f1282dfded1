#include "present/frogparade.h"

#include "base/random.h"
#include "game/model/gametick.h"
#include "game/model/resources.h"
#include "present/screen/display.h"

namespace glonks {
namespace {

constexpr Rect frogSource{0, 0, 100, 100};
constexpr i16 lastFrog = 19;
constexpr i16 frogPictureCount = 5;
constexpr i32 frogStarts = 2000;  // different x of a start
constexpr i32 shortestDelay = 4;  // pictureDelay is this or one more
constexpr i32 slowestFrog = 7;    // speed is this or one more
constexpr i32 soundChance = 200;  // a frame's draw; each of the lowest numbers is a sound

void addFrog() {
  Frog& frog = grow(frogs, frogsUpper);
  frog.x = static_cast<i16>(drawBelow(frogStarts));
  frog.picture = static_cast<i16>(drawBelow(frogPictureCount) + 1);
  frog.pictureDelay = static_cast<i16>(drawBelow(2) + shortestDelay);
  frog.speed = static_cast<i16>(drawBelow(2) + slowestFrog);
}

void turnPicture(Frog& frog) {
  ++frog.pictureCount;
  if (frog.pictureCount <= frog.pictureDelay) return;
  frog.pictureCount = 0;
  ++frog.picture;
  if (frog.picture > frogPictureCount) frog.picture = 1;
}

// Oddity 19: a frog is drawn where it was, but only if where it goes is still on the screen.
void moveFrog(Frog& frog, bool restarts) {
  const i32 left = frog.x;
  const i32 top = frog.y;
  frog.x = static_cast<i16>(frog.x - frog.speed);
  frog.y = static_cast<i16>(frog.y + frog.speed);
  if (frog.y <= screenHeight && frog.x >= 0) {
    backBuffer->Blt({left, top, left + frogSource.right, top + frogSource.bottom},
                    frogPictures[static_cast<std::size_t>(frog.picture) - 1], frogSource, bltKeyed);
  } else if (restarts) {
    frog.x = static_cast<i16>(drawBelow(frogStarts));
    frog.y = 0;
  }
}

}  // namespace

void frogParade() {
  if (frogsUpper < lastFrog) addFrog();
  for (Frog& frog : frogs) {
    turnPicture(frog);
    moveFrog(frog, gameTick() < frogBonusUntil);
  }
  if (gameTick() >= frogBonusUntil) return;
  const auto draw = static_cast<std::size_t>(drawBelow(soundChance));
  if (draw < frogSounds.size()) frogSounds[draw]->Play(0);
}

}  // namespace glonks
