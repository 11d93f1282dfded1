#include "present/itemdisplay.h"

#include <string>

#include "base/text.h"
#include "game/model/mode.h"
#include "game/model/model.h"
#include "present/screen/display.h"

namespace glonks {
namespace {

constexpr i32 lineY = 33;
constexpr i32 firstX = 300;
constexpr i32 itemPitch = 100;
constexpr i16 itemsShown = 4;
constexpr i32 bankX = 795;
constexpr i32 notesX = 895;
constexpr i32 scoreX = 83;
constexpr i32 scoreY = 45;

void drawCounter(i32 x, i32 count) {
  backBuffer->DrawText(x, lineY, plainNumber(count) + " x ", False);
}

}  // namespace

void drawItems() {
  if (gameMode.counter == Counter::stock) {
    for (i16 item = 0; item < itemsShown; ++item) {
      drawCounter(firstX + itemPitch * item, stockOf(item));
    }
  }
  if (gameMode.counter == Counter::pieces) drawCounter(firstX, bTypeLeft);
  drawCounter(bankX, bank);
  drawCounter(notesX, notesCollected);
}

void drawScore() { backBuffer->DrawText(scoreX, scoreY, plainNumber(score), False); }

}  // namespace glonks
