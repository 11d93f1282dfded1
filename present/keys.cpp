#include "present/keys.h"

#include "game/model/gametick.h"
#include "game/model/model.h"
#include "game/model/resources.h"
#include "present/endquestion.h"
#include "present/music.h"
#include "present/pause.h"
#include "present/screen/display.h"
#include "rules/items.h"
#include "rules/rowshift.h"

namespace glonks {
namespace {

// DirectInput scan codes.
enum ScanCode : i16 {
  noKey = -2,
  keyEscape = 1,
  key1 = 2,
  key2 = 3,
  key3 = 4,
  key4 = 5,
  keyP = 25,
  keyN = 49,
  keyUp = 200,
  keyLeft = 203,
  keyRight = 205,
  keyDown = 208,
  padBack = padBackCode
};

constexpr i32 keyGate = 150;  // ms after a key during which others are ignored
constexpr i16 topRow = rowCount - 1;

KeyState keyState = {};

bool isDown(ScanCode code) { return keyState[static_cast<std::size_t>(code)] != 0; }

// Takes one off a stock, if the mode lets items be used and there is one.
bool takeItem(i16 slot) {
  i16& stock = stockOf(slot);
  if (modeName != "Freestyle" || stock <= 0) return false;
  --stock;
  return true;
}

void movePointer(i16 step) {
  selectedRow = static_cast<i16>(selectedRow + step);
  _moverow->Stop();
  _moverow->Play(0);
}

void act(i16 wanted) {
  switch (wanted) {
    case key1:
      if (takeItem(slammerItem)) dropItem("Slammer");
      break;
    case key2:
      if (takeItem(bombItem)) dropItem("Bomb");
      break;
    case key3:
      if (takeItem(detonatorItem)) detonate();
      break;
    case key4:
      if (takeItem(bowlingBallItem)) dropItem("Bowling Ball");
      break;
    case keyLeft:
      shiftRow(True);
      break;
    case keyRight:
      shiftRow(False);
      break;
    case keyUp:
      if (selectedRow != topRow) movePointer(1);
      break;
    case keyDown:
      if (selectedRow != 0) movePointer(-1);
      break;
    case keyEscape:
      gameOver = True;
      break;
    default:
      break;
  }
}

}  // namespace

void readKeys() {
  keyboard->GetDeviceStateKeyboard(keyState);
  if (isDown(padBack)) return askToEnd();
  i16 wanted = noKey;
  for (const ScanCode code : {key1, key2, key3, key4}) {
    if (isDown(code)) wanted = code;
  }
  // Oddity 7: the gate doesn't hold these two, so a held P toggles at each repeat.
  if (isDown(keyN)) nextSong();
  if (isDown(keyP)) togglePause();
  // The last key found down wins: Escape before Down before Up before Right before Left.
  for (const ScanCode code : {keyLeft, keyRight, keyUp, keyDown, keyEscape}) {
    if (isDown(code)) wanted = code;
  }
  if (gameTick() <= i64{lastKeyTick} + keyGate) return;
  if (paused == True) return;
  act(wanted);
  lastKeyTick = gameTick();
}

}  // namespace glonks
