#include "present/pause.h"
#include "tests/engine/enginetest.h"

namespace glonks {

class KeysTest : public EngineTest {
 protected:
  // One step in each call of the messages inside a pause, which is drawn before the next.
  static void pauseWith(const Action& start, const std::vector<Action>& steps) {
    std::size_t next = 0;
    fake::messages = [&] {
      EXPECT_TRUE(fake::musicHalted && fake::cursorShown == 1);
      steps.at(next++)();
    };
    start();
    EXPECT_EQ(next, steps.size());
    EXPECT_FALSE(fake::musicHalted || fake::cursorShown == 1 || paused == True);
    fake::messages = nullptr;
  }
  static Action key(i32 code, u32 wait = 1000) {
    return [=] { press({code}, wait); };
  }
};

TEST_F(KeysTest, LastKeyOfTheOrderActs) {
  const struct {
    std::vector<i32> keys;
    Draws draws;
    const char* after;
    const char* stock;
  } cases[] = {
      {{key1}, {0.55, 0}, "....1; falls S5", "011111"},
      {{key2}, {0.55, 0}, "....1; falls B5", "101111"},
      {{key3}, {}, "....1; hears detonate", "110111"},
      {{key4}, {0.55, 0}, "....1; falls W5", "111011"},
      {{key1, key2}, {0.55, 0}, "....1; falls B5", "101111"},
      {{key4, keyLeft}, {}, "...1; hears changerow", "111111"},
      {{keyLeft, keyRight}, {}, ".....1; hears changerow", "111111"},
      {{keyRight, keyUp}, {}, "....1; hears stop _moverow moverow; row 1", "111111"},
      {{keyUp, keyDown}, {}, "....1", "111111"},
      {{keyDown, keyEscape}, {}, "....1; over -1", "111111"},
      {{keySpace}, {}, "....1", "111111"},
      {{}, {}, "....1", "111111"},
  };
  const auto stockLeft = [] {
    std::string left;
    for (const i16 count : itemStock) left += std::to_string(count);
    return left;
  };
  for (const auto& [keys, draws, after, stock] : cases) {
    renew();
    lay("....1");
    itemStock.fill(1);
    fake::draws = draws;
    press(keys);
    EXPECT_EQ(outcome(), after);
    EXPECT_EQ(stockLeft(), stock) << after;
    EXPECT_EQ(lastKeyTick, gameTick());
  }
  for (i32 key = key1; key <= key4; ++key) {
    renew();
    press({key});  // the stock is empty
    modeName = "Other";
    itemStock.fill(1);
    press({key});
    EXPECT_EQ(outcome() + stockLeft(), "111111");
  }
}

TEST_F(KeysTest, ArrowsMoveThePointerBetweenItsEnds) {
  Numbers rows;
  for (i32 i = 0; i < 16; ++i) {
    press({i < 8 ? keyUp : keyDown});
    rows.push_back(selectedRow);
  }
  EXPECT_EQ(rows, (Numbers{1, 2, 3, 4, 5, 6, 6, 6, 5, 4, 3, 2, 1, 0, 0, 0}));
  EXPECT_EQ(fake::sounds.size(), 24U);  // 12 moves, each cut off and played
}

TEST_F(KeysTest, GateIsShutFor150MillisecondsAfterAnyKeyButN) {
  press({keySpace});  // does nothing, and shuts the gate all the same
  press({keyUp}, 150);
  EXPECT_EQ(selectedRow, 0);
  press({keyUp}, 1);  // the dead event has not moved the gate
  EXPECT_EQ(selectedRow, 1);
  songNames = {"Band - Song"};
  fake::draws = {0, 0};
  for (i32 i = 0; i < 2; ++i) press({keyN}, 0);
  EXPECT_EQ(fake::songsOpened.size(), 2U);
}

TEST_F(KeysTest, DetonatorMakesAllBombsAtRestDue) {
  lay("..B/..BU");
  drop('B', 7).expiry = 5000;
  cellAt(1, 2).occupied = False;
  itemStock[detonatorItem] = 1;
  press({key3});
  EXPECT_EQ((Numbers{cellAt(0, 2).expiry, cellAt(0, 3).expiry, cellAt(1, 2).expiry,
                     fallingPieces[0].expiry}),
            (Numbers{0, 1000000000, 1000000000, 5000}));
}

TEST_F(KeysTest, PauseStopsGameTimeAndAllKeysButN) {
  songNames = {"Band - Song"};
  fake::draws = {0};
  pauseWith(key(keyP), {key(keyEscape), key(keyUp), key(keyLeft), key(keyN), key(keyP)});
  EXPECT_EQ(outcome(), "");
  EXPECT_EQ((Numbers{gameTick(), static_cast<i32>(fake::songsOpened.size())}), (Numbers{2000, 1}));
  Names frames;
  for (i32 i = 0; i < 5; ++i) {
    for (const char* line :
         {"fill 0 whole", "Paused...  Press the P key to resume. at 10,20", "flip"}) {
      frames.emplace_back(line);
    }
  }
  EXPECT_EQ(drawn(), frames);
  press({keyUp}, 150);
  EXPECT_EQ(selectedRow, 0);  // P has shut the gate, by the time that goes on
  press({keyUp}, 1);
  EXPECT_EQ(selectedRow, 1);
  // A pause so short that the gate of the key before it is still shut when it ends.
  const i32 tick = lastKeyTick;
  pauseWith(key(keyP, 40), {key(keyP, 40)});
  EXPECT_EQ((Numbers{lastKeyTick, static_cast<i32>(tickBase)}), (Numbers{tick, 5040}));
}

// Key events come together when the system has been held up.
TEST_F(KeysTest, AnyNumberOfPausesTakesGameTimeBackToTheStartOfTheFirst) {
  const auto twice = [] { press({keyP}, 3000), press({keyP}, 0); };
  const std::vector<std::vector<Action>> cases = {
      {twice, key(keyP, 60000)},
      {twice, twice, key(keyP, 60000)},
      {key(keyUp), twice, key(keyUp, 60000), key(keyP)},
  };
  for (const auto& steps : cases) {
    renew();
    fake::clockNow = 1900;
    pauseWith(key(keyP, 100), steps);
    EXPECT_EQ(gameTick(), 2000);
    press({keyUp}, 151);
    EXPECT_EQ((Numbers{selectedRow, lastKeyTick}), (Numbers{1, 2151}));
  }
}

TEST_F(KeysTest, LostScreenIsWaitedForWithoutDrawing) {
  const auto lose = [] { fake::screenIsLost = true; };
  const auto wait = [] { EXPECT_TRUE(drawn().empty()); };
  const auto regain = [] { fake::screenIsLost = false; };
  pauseWith(togglePause, {lose, wait, wait, regain, key(keyP)});
  EXPECT_EQ(drawn()[0], "surfaces restored");
}

TEST_F(KeysTest, CloseBoxPausesAGameInPlayAndTellsHowToEndIt) {
  pauseByCloseBox();  // no game in play
  EXPECT_EQ(fake::windowTitle, "");
  inPlay = True;
  const auto told = [] { EXPECT_PRED2(holds, fake::windowTitle, "Escape to end"); };
  pauseWith(pauseByCloseBox, {told, pauseByCloseBox, told, key(keyP)});
  EXPECT_EQ(fake::windowTitle, "Click to resume play");
  pauseWith(togglePause, {pauseByCloseBox, told, key(keyP)});
  EXPECT_EQ(fake::windowTitle, "Click to resume play");
  EXPECT_EQ(gameTick(), 1000);
}

}  // namespace glonks
