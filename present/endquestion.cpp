#include "present/endquestion.h"

#include "game/model/gametick.h"
#include "game/model/model.h"
#include "present/screen/display.h"

namespace glonks {
namespace {

constexpr i32 timeToConfirm = 2000;  // ms
constexpr i32 questionX = 80;        // below the song's title
constexpr i32 questionY = 741;

bool isAsked() { return gameTick() <= endAskedUntil; }

}  // namespace

void askToEnd() {
  if (paused == True) return;
  if (isAsked()) gameOver = True;
  endAskedUntil = gameTickIn(timeToConfirm);
}

void showEndQuestion() {
  if (!isAsked()) return;
  backBuffer->DrawText(questionX, questionY, "Press Back once more to end the game.", False);
}

}  // namespace glonks
