#include "present/keys.h"

#include "game/resources.h"
#include "shell/menucontrols.h"
#include "tests/engine/enginetest.h"

namespace glonks {
namespace {

constexpr i32 escape = 1, one = 2, two = 3, three = 4, four = 5, p = 25, n = 49, up = 200,
              left = 203, right = 205, down = 208, spaceBar = 57;

class KeysTest : public EngineTest {
 protected:
  KeysTest() {
    modeName = "Freestyle";
    clearItems(songs);
    addItem(songs, "Band - Song");
  }

  // A key event well after the last one.
  static void press(const std::vector<i32>& keys) {
    passTime(1000);
    fake::pressKeys(keys);
  }
};

TEST_F(KeysTest, ArrowsMoveThePointerBetweenItsEnds) {
  for (i32 i = 0; i < 8; ++i) press({up});
  EXPECT_EQ(selectedRow, 6);
  EXPECT_EQ(fake::sounds.size(), 12U);  // six moves, each cut off and played
  EXPECT_EQ(fake::sounds[0], "stop _moverow");
  EXPECT_EQ(fake::sounds[1], "_moverow");
  for (i32 i = 0; i < 8; ++i) press({down});
  EXPECT_EQ(selectedRow, 0);
  EXPECT_EQ(fake::sounds.size(), 24U);
  EXPECT_EQ(lastKeyTick, gameTick());  // also for a move that isn't possible
}

TEST_F(KeysTest, ArrowsShiftTheRowUnderThePointer) {
  put(0, 4);
  press({left});
  EXPECT_EQ(cellAt(0, 3).occupied, True);
  press({right});
  press({right});
  EXPECT_EQ(cellAt(0, 5).occupied, True);
  EXPECT_EQ(fake::sounds, Sounds(3, "_changerow"));
}

TEST_F(KeysTest, LastKeyOfTheOrderWins) {
  put(0, 4);
  itemStock[slammerItem] = 1;
  press({one, left});
  EXPECT_EQ(cellAt(0, 3).occupied, True);
  EXPECT_EQ(itemStock[slammerItem], 1);
  press({left, right});
  EXPECT_EQ(cellAt(0, 4).occupied, True);
  press({right, up});
  EXPECT_EQ(selectedRow, 1);
  press({up, down});
  EXPECT_EQ(selectedRow, 0);
  EXPECT_EQ(gameOver, False);
  press({down, escape});
  EXPECT_EQ(gameOver, True);
}

TEST_F(KeysTest, GateIsShutFor150MillisecondsAfterAnyKey) {
  press({spaceBar});  // does nothing, and shuts the gate all the same
  passTime(150);
  fake::pressKeys({up});
  EXPECT_EQ(selectedRow, 0);
  passTime(1);  // the dead event has not moved the gate
  fake::pressKeys({up});
  EXPECT_EQ(selectedRow, 1);
}

TEST_F(KeysTest, ItemKeysSpendTheStock) {
  struct Case {
    i32 key;
    std::size_t slot;
  };
  for (const auto& [key, slot] : {Case{one, 0}, {two, 1}, {three, 2}, {four, 3}}) {
    itemStock.fill(0);
    press({key});
    EXPECT_EQ(itemStock[slot], 0) << key;
    itemStock.fill(5);
    press({key});
    for (std::size_t other = 0; other < itemStock.size(); ++other) {
      EXPECT_EQ(itemStock[other], other == slot ? 4 : 5) << key << " " << other;
    }
    modeName = "Other";
    press({key});
    EXPECT_EQ(itemStock[slot], 4) << key;
    modeName = "Freestyle";
  }
  EXPECT_EQ(fake::sounds, Sounds{"_detonate"});
}

TEST_F(KeysTest, DetonatorMakesAllBombsAtRestDue) {
  Cell& bomb = put(0, 2, "Bomb");
  Cell& removed = put(3, 2, "Bomb");
  Cell& rock = put(0, 3, "Rock");
  Piece& flying = drop(7, "Bomb");
  for (Piece* piece : {static_cast<Piece*>(&bomb), static_cast<Piece*>(&removed), &flying}) {
    piece->isBomb = True;
    piece->expiry = 9000;
  }
  rock.expiry = 9000;
  removed.occupied = False;
  itemStock[detonatorItem] = 1;
  press({three});
  EXPECT_EQ(bomb.expiry, 0);
  EXPECT_EQ(removed.expiry, 9000);
  EXPECT_EQ(rock.expiry, 9000);
  EXPECT_EQ(flying.expiry, 9000);
}

TEST_F(KeysTest, NChangesTheSongWithoutWaitingForTheGate) {
  for (i32 i = 0; i < 3; ++i) {
    fake::queueDraw(0, 1);
    fake::pressKeys({n});
  }
  EXPECT_EQ(fake::songsOpened.size(), 3U);
}

// Runs a pause that P starts; each entry of `steps` is the keys of one event inside it, 1000 ms
// after the last.
void pauseWith(const std::vector<std::vector<i32>>& steps) {
  std::size_t next = 0;
  fake::messages = [&] {
    ASSERT_LT(next, steps.size()) << "the pause goes on after its last step";
    fake::clockNow += 1000;
    fake::pressKeys(steps[next++]);
  };
  fake::pressKeys({p});
  fake::messages = nullptr;
}

TEST_F(KeysTest, PauseStopsGameTimeAndMusic) {
  passTime(5000);
  const i32 before = gameTick();
  bool haltedInside = false;
  i32 cursorInside = -1;
  fake::messages = [&] {
    haltedInside = fake::musicHalted;
    cursorInside = fake::cursorShown;
    passTime(7777);
    fake::pressKeys({p});
  };
  fake::pressKeys({p});
  EXPECT_TRUE(haltedInside);
  EXPECT_EQ(cursorInside, 1);
  EXPECT_EQ(fake::cursorShown, 0);
  EXPECT_FALSE(fake::musicHalted);
  EXPECT_EQ(paused, False);
  EXPECT_EQ(gameTick(), before);
  EXPECT_EQ(tickBase, 7777U);
  fake::pressKeys({p});  // a second one adds up
  EXPECT_EQ(tickBase, 15554U);
  EXPECT_EQ(gameTick(), before);
}

TEST_F(KeysTest, AfterAPauseKeysWorkAgainAfterTheUsualTime) {
  passTime(5000);
  pauseWith({{spaceBar}, {p}});
  EXPECT_LE(lastKeyTick, gameTick());
  passTime(150);
  fake::pressKeys({up});
  EXPECT_EQ(selectedRow, 0);
  passTime(1);
  fake::pressKeys({up});
  EXPECT_EQ(selectedRow, 1);

  // One so short that the gate of the key before it is still shut when it ends.
  const i32 tick = lastKeyTick;
  fake::messages = [] {
    passTime(40);
    fake::pressKeys({p});
  };
  passTime(20);
  fake::pressKeys({p});
  EXPECT_EQ(lastKeyTick, tick);
}

TEST_F(KeysTest, OtherKeysAreDeadInAPauseButN) {
  passTime(5000);
  fake::queueDraw(0, 1);
  pauseWith({{escape}, {up}, {left}, {n}, {p}});
  EXPECT_EQ(gameOver, False);
  EXPECT_EQ(selectedRow, 0);
  EXPECT_EQ(fake::songsOpened.size(), 1U);
  EXPECT_TRUE(fake::sounds.empty());
}

TEST_F(KeysTest, PauseShowsItsLineAloneAndWaitsForALostScreen) {
  backBuffer->BltColorFill({}, RGB(9, 99, 200));
  passTime(5000);
  i32 pass = 0;
  i32 shownWhileLost = 0;
  fake::messages = [&] {
    ++pass;
    fake::screenIsLost = pass >= 3 && pass < 6;
    if (pass == 3) shownWhileLost = fake::picturesShown;
    if (pass == 6) {
      EXPECT_EQ(fake::picturesShown, shownWhileLost);
    }
    if (pass == 8) fake::pressKeys({p});
  };
  togglePause();
  EXPECT_EQ(pass, 8);
  EXPECT_EQ(backBuffer->pixel(500, 500), 0U);
  bool text = false;
  for (i32 x = 10; x < 250; ++x) text = text || backBuffer->pixel(x, 30) != 0;
  EXPECT_TRUE(text);
}

TEST_F(KeysTest, WindowCantBeClosedWhileAGameRuns) {
  fConsole_Unload();
  EXPECT_TRUE(fake::windowOpen);
  gameOver = True;
  fConsole_Unload();
  EXPECT_FALSE(fake::windowOpen);
}

}  // namespace
}  // namespace glonks
