#include "player/player.h"

#include <algorithm>

#include "game/model/gametick.h"

namespace glonks {

i32 nextKeyOf(Plan& plan) {
  if (plan.steps == 0) return 0;
  if (plan.row != selectedRow) return plan.row > selectedRow ? keyUp : keyDown;
  const i32 key = plan.steps > 0 ? keyRight : keyLeft;
  plan.steps += plan.steps > 0 ? -1 : 1;
  return key;
}

i32 Player::nextKey() {
  eye_.follow();
  if (gameTick() < std::max(lastKeyTick + foresight_.keyPause, nextLook_)) return 0;
  const BoardView view = eye_.look();
  // A plan rests on what lies still; only the pointer goes ahead.
  if (view.settling && plan_.row == selectedRow) return 0;
  if (plan_.steps == 0 && !view.settling) plan_ = bestPlan(view, foresight_);
  const i32 key = nextKeyOf(plan_);
  if (key == 0) nextLook_ = gameTick() + foresight_.keyPause;
  return key;
}

}  // namespace glonks
