#include "player/boardview.h"

#include <algorithm>

#include "game/model/gametick.h"

namespace glonks {
namespace {

constexpr i32 frameTime = 26;    // ms
constexpr i32 ripeAge = 18'000;  // ms; Bombs go off after 25 to 35 s

// How long a piece still falls and bounces if its column stays as it is: a feeling for it that
// players come to have.
i32 landingTime(const Piece& piece, i32 height) {
  const i32 floor = bottomFloor - cellPitch * height;
  double y = piece.y, velocity = piece.velocity;
  i32 frames = 0;
  for (i32 bounces = piece.bounces; bounces < 5 && frames < 400; ++frames) {
    velocity += 1;
    y += velocity;
    if (y <= floor) continue;
    y = floor;
    velocity *= -0.75;
    ++bounces;
  }
  return frames * frameTime;
}

}  // namespace

void Eye::follow() {
  for (const Piece& piece : fallingPieces) {
    if (piece.isBomb == True) bombs_.try_emplace(piece.expiry, gameTick());
  }
}

bool Eye::isRipe(const Piece& bomb) const {
  const auto seen = bombs_.find(bomb.expiry);
  return seen != bombs_.end() && gameTick() - seen->second > ripeAge;
}

BoardView Eye::look() const {
  BoardView view;
  view.pointer = selectedRow;
  for (i32 row = 0; row < rowCount; ++row) {
    for (i32 column = 0; column < columnCount; ++column) {
      const Cell& cell = cellAt(row, column);
      if (cell.occupied != True) continue;
      const bool ripe = cell.isBomb == True && isRipe(cell);
      put(view.position, row, column, static_cast<Kind>(kindOf(cell) | bitIf(ripe, ripeTrait)));
    }
  }
  for (const Piece& piece : fallingPieces) {
    if (piece.tallied == True) {
      view.settling = true;
      continue;
    }
    const i32 height = heightOf(view.position, piece.column);
    view.incoming.push_back(
        {kindOf(piece), piece.column, piece.isBowlingBall == True, landingTime(piece, height)});
  }
  std::sort(view.incoming.begin(), view.incoming.end(),
            [](const SeenFalling& a, const SeenFalling& b) { return a.landsIn < b.landsIn; });
  return view;
}

}  // namespace glonks
