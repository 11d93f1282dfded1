#include "tests/engine/enginetest.h"

namespace glonks {

constexpr i32 escape = 1, one = 2, three = 4, p = 25, n = 49, spaceBar = 57, up = 200, left = 203,
              right = 205, down = 208;

class KeysTest : public EngineTest {
 protected:
  KeysTest() { songNames.push_back("Band - Song"); }

  // A key event, as a rule well after the last one; gives the row under the pointer after it.
  static i16 press(const std::vector<i32>& keys, u32 wait = 1000) {
    fake::clockNow += wait;
    fake::pressKeys(keys);
    return selectedRow;
  }

  // A pause that P starts; each of `steps` is one key pressed inside it.
  static void pauseWith(const std::vector<i32>& steps, u32 wait = 1000) {
    std::size_t next = 0;
    fake::messages = [&] {
      EXPECT_TRUE(fake::musicHalted && fake::cursorShown == 1);
      press({steps.at(next++)}, wait);
    };
    press({p}, wait);
    EXPECT_EQ(next, steps.size());
    EXPECT_FALSE(fake::musicHalted || fake::cursorShown == 1);
  }
};

TEST_F(KeysTest, ArrowsMoveThePointerBetweenItsEnds) {
  for (i16 i = 0; i < 8; ++i) EXPECT_EQ(press({up}), std::min<i16>(i + 1, 6));
  for (i16 i = 0; i < 8; ++i) EXPECT_EQ(press({down}), std::max<i16>(5 - i, 0));
  EXPECT_EQ(fake::sounds.size(), 24U);  // 12 moves, each cut off and played
  EXPECT_EQ(fake::sounds[0] + fake::sounds[1], "stop _moverow_moverow");
}

TEST_F(KeysTest, LastKeyOfTheOrderWins) {
  put(0, 4);
  itemStock.fill(1);
  press({one, left});
  EXPECT_EQ(itemStock[slammerItem], 1);
  EXPECT_EQ(field(), "/...G......");
  press({left, right});
  EXPECT_EQ(field(), "/....G.....");
  EXPECT_EQ(press({right, up}), 1);
  EXPECT_EQ(press({up, down}), 0);
  press({down, escape});
  EXPECT_EQ(gameOver, True);
}

TEST_F(KeysTest, GateIsShutFor150MillisecondsAfterAnyKeyButN) {
  press({spaceBar});  // does nothing, and shuts the gate all the same
  EXPECT_EQ(press({up}, 150), 0);
  EXPECT_EQ(press({up}, 1), 1);  // the dead event has not moved the gate
  fake::draws = {0, 0};
  for (i32 i = 0; i < 2; ++i) press({n}, 0);
  EXPECT_EQ(fake::songsOpened.size(), 2U);
}

TEST_F(KeysTest, ItemKeysSpendTheStockOfAFreestyleGame) {
  loadPieces();
  fake::useGenerator();
  for (i16 slot = 0; slot < 4; ++slot) {
    itemStock.fill(1);
    modeName = "Other";
    press({one + slot});
    EXPECT_EQ(std::count(itemStock.begin(), itemStock.end(), 1), 6);
    modeName = "Freestyle";
    for (i32 i = 0; i < 2; ++i) press({one + slot});  // the second finds none
    EXPECT_EQ(std::count(itemStock.begin(), itemStock.end(), 1), 5);
    EXPECT_EQ(itemStock[static_cast<std::size_t>(slot)], 0);
  }
  EXPECT_EQ(fake::sounds, Names{"_detonate"});
}

TEST_F(KeysTest, DetonatorMakesAllBombsAtRestDue) {
  Piece* const pieces[] = {&put(0, 2), &put(3, 2), &put(0, 3), &drop(7)};
  for (Piece* piece : pieces) piece->expiry = piece->isBomb = True;
  cellAt(3, 2).occupied = False;
  cellAt(0, 3).isBomb = False;
  itemStock[detonatorItem] = 1;
  press({three});
  EXPECT_EQ(pieces[0]->expiry, 0);
  for (std::size_t i = 1; i < 4; ++i) EXPECT_EQ(pieces[i]->expiry, -1) << i;
}

TEST_F(KeysTest, PauseStopsGameTimeAndAllKeysButN) {
  fake::draws = {0};
  pauseWith({escape, up, left, n, p});
  EXPECT_EQ((Numbers{gameTick(), gameOver, selectedRow}), (Numbers{2000, False, 0}));
  EXPECT_EQ(fake::songsOpened.size(), 1U);
  EXPECT_TRUE(fake::sounds.empty());
  EXPECT_EQ(press({up}, 150), 0);  // P has shut the gate, by the time that goes on
  EXPECT_EQ(press({up}, 1), 1);
  pauseWith({p});
  EXPECT_EQ(tickBase, 6000U);  // of both
  // A pause so short that the gate of the key before it is still shut when it ends.
  const i32 tick = lastKeyTick;
  pauseWith({p}, 40);
  EXPECT_EQ(lastKeyTick, tick);
}

}  // namespace glonks
