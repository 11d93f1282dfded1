#include "present/keys.h"
#include "present/pause.h"
#include "present/screen/fconsole.h"
#include "present/services/gamepad.h"
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
  static Action key(const char* key, u32 wait = 1000) {
    return [=] { press(key, wait); };
  }
};

TEST_F(KeysTest, PauseStopsGameTimeAndAllKeysButN) {
  songNames = {"Band - Song"};
  fake::draws = {0, 0};
  pauseWith(key("P"), {key("Escape"), key("Up"), key("Left"), key("N"), key("P")});
  EXPECT_EQ(outcome(), "lastKeyTick 2000; songIndex 0; songTitle Band - Song; tickBase 5000");
  EXPECT_EQ((Numbers{gameTick(), static_cast<i32>(fake::songsOpened.size())}), (Numbers{2000, 1}));
  press("Up", 150);
  EXPECT_EQ(selectedRow, 0);  // P has shut the gate, by the time that goes on
  press("Up", 1);
  EXPECT_EQ(selectedRow, 1);
  press("N", 0);
  EXPECT_EQ(fake::songsOpened.size(), 2U);
  // A pause so short that the gate of the key before it is still shut when it ends.
  const i32 tick = lastKeyTick;
  pauseWith(key("P", 40), {key("P", 40)});
  EXPECT_EQ((Numbers{lastKeyTick, static_cast<i32>(tickBase)}), (Numbers{tick, 5040}));
}

TEST_F(KeysTest, UnpluggingThePadInUsePausesAGameOnceAndAPauseNamesTheDeviceInUse) {
  const auto says = [](std::string line) {
    return [=] { EXPECT_EQ(drawn().at(1), line + " to resume. at 10,20"); };
  };
  pauseByLostPad();  // no game in play
  inPlay = True;
  drawn();
  pauseWith(pauseByLostPad,
            {[] {}, says("Paused...  Press the P key"), [] { padInUse = true; }, pauseByLostPad,
             [] { drawn(); }, says("Paused...  Press Start"), pauseByCloseBox, key("P")});
  const auto told = [] { EXPECT_PRED2(holds, fake::windowTitle, "then Back twice"); };
  pauseWith(pauseByCloseBox, {told, key("P")});
}

// Key events come together when the system has been held up.
TEST_F(KeysTest, AnyNumberOfPausesTakesGameTimeBackToTheStartOfTheFirst) {
  const auto twice = [] { press("P", 3000), press("P", 0); };
  const std::vector<std::vector<Action>> cases = {
      {twice, key("P", 60000)},
      {twice, twice, key("P", 60000)},
      {key("Up"), twice, key("Up", 60000), key("P")},
  };
  for (const auto& steps : cases) {
    renew();
    fake::clockNow = 1900;
    pauseWith(key("P", 100), steps);
    EXPECT_EQ(gameTick(), 2000);
    press("Up", 151);
    EXPECT_EQ((Numbers{selectedRow, lastKeyTick}), (Numbers{1, 2151}));
  }
  // The key that comes with the P acts once, however long the pause's last picture takes.
  renew();
  fake::clockNow = 2000;
  fake::messages = [] {
    if (fake::screenIsLost) {
      fake::clockNow += 400;
    } else {
      fake::pressKeys({25, 200});
    }
    fake::screenIsLost = !fake::screenIsLost;
  };
  press("P", 0);
  EXPECT_EQ((Numbers{selectedRow, lastKeyTick, gameTick()}), (Numbers{1, 2000, 2000}));
  EXPECT_EQ(fake::windowStates, (Numbers{2, 0}));
  // And one that fails.
  EXPECT_THROW(pauseWith(key("P"), {[] { throw 1; }}), int);
  EXPECT_EQ((Numbers{gameTick(), paused, fake::musicHalted}), (Numbers{3000, False, 0}));
}

TEST_F(KeysTest, CloseBoxPausesAGameInPlayAndTellsHowToEndIt) {
  pauseByCloseBox();  // no game in play
  EXPECT_EQ(fake::windowTitle, "");
  inPlay = True;
  const auto told = [] { EXPECT_PRED2(holds, fake::windowTitle, "Escape to end"); };
  pauseWith(pauseByCloseBox, {told, pauseByCloseBox, told, key("P")});
  EXPECT_EQ(fake::windowTitle, "Click to resume play");
  pauseWith(togglePause, {pauseByCloseBox, told, key("P")});
  EXPECT_EQ(fake::windowTitle, "Click to resume play");
  EXPECT_EQ(gameTick(), 1000);
}

TEST_F(KeysTest, ScreenInputAndMusicAreTakenAndGivenBack) {
  for (i32 game = 0; game < 2; ++game) {
    fConsole_Show(readKeys, pauseByCloseBox);
    gameOver = False;
    initDX();
    EXPECT_EQ((Numbers{fake::cursorShown, fake::musicReady}), (Numbers{0, 1}));
    fConsole_Unload();
    gameOver = paused = True;
    fConsole_Unload();
    paused = False;
    EXPECT_TRUE(fake::windowOpen) << "can't be closed in a game or in a pause after its end";
    for (i32 time = 0; time < 2; ++time) {
      gameOver = True;
      destroy();
      EXPECT_FALSE(fake::windowOpen || fake::musicReady || dd || dx);
      EXPECT_EQ((Numbers{fake::cursorShown, fConsole.hWnd, gameOver}), (Numbers{1, 0, True}));
    }
  }
}

}  // namespace glonks
