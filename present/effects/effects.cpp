#include "present/effects/effects.h"

#include "game/model/model.h"
#include "game/model/resources.h"

namespace glonks {
namespace {

constexpr i16 impactStart = 10;  // ages
constexpr i16 zapStart = 5;

}  // namespace

void pushImpact(i16 x, i16 y, Flag silent) {
  grow(impacts, impactsUpper) = {x, y, impactStart};
  if (silent == False) _pop01->Play(0);
}

void pushZap(i16 x, i16 y, Flag horizontal) {
  grow(zaps, zapsUpper) = {horizontal, zapStart, x, y};
  _slam01->Play(0);
}

void pushPopup(i16 x, i16 y, i32 points) {
  grow(scorePopups, scorePopupsUpper) = {x, y, clamped<i16>(points)};
}

void impactAt(const Piece& piece, Flag silent) {
  pushImpact(effectX(piece.column), effectY(piece.y), silent);
}

void popupAt(const Piece& piece, i32 points) {
  pushPopup(effectX(piece.column), effectY(piece.y), points);
}

}  // namespace glonks
