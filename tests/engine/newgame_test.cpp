#include <sstream>

#include "game/modes.h"
#include "present/keys.h"
#include "present/pause.h"
#include "present/screen/fconsole.h"
#include "storage/files/log.h"
#include "tests/engine/enginetest.h"

namespace glonks {

class NewGameTest : public EngineTest {
 protected:
  static void reset(i32 plate = 1) {
    fake::draws = {fake::drawOf(plate - 1, 5)};
    initVariables();
  }
};

TEST_F(NewGameTest, DirtyGameComesOutAsAFreshOneButForWhatIsKept) {
  pieceCatalog.fill(Piece{});
  pieceCatalogUpper = -1;
  auto expected = gameState();
  dirtyGame();
  const auto dirtied = gameState();
  std::istringstream kept(
      "bank itemStock notesCollected modeName spawnInterval gameOver inPlay paused lastKeyTick "
      "nextPointsTick pendingSpawns frogBonusUntil bTypeLeft musicVolume songNames songIndex "
      "songTitle tickBase levelOver levelWon");
  for (std::string name; kept >> name;) expected.at(name) = dirtied.at(name);
  reset();
  for (const auto& [name, value] : gameState()) EXPECT_EQ(value, expected.at(name)) << name;
}

TEST_F(NewGameTest, FrameIsTheModesAndThePlateTheThemes) {
  const std::pair<const char*, const char*> frames[] = {{"Freestyle", "frame"},
                                                        {"Arcade", "frameA"},
                                                        {"B-Type", "frameB"},
                                                        {"Midnight Bowling", "frameM"},
                                                        {"none", "frameM"}};
  for (const auto& [mode, picture] : frames) {
    gameMode = modeTitled(mode);
    reset(3);
    EXPECT_EQ(fake::nameOf(frameSurface) + fake::nameOf(plateSurface),
              picture + std::string("plate_03"));
  }
  themeName = "Nowhere";
  EXPECT_PRED2(holds, errorOf([] { reset(5); }), "\\themes\\Nowhere\\plate_05.bmp");
}

TEST_F(NewGameTest, ScreenInputAndMusicAreTakenStepByStepAndGivenBack) {
  for (i32 game = 0; game < 2; ++game) {
    logEnabled = True;
    openLog();
    fConsole_Show(readKeys, pauseByCloseBox);
    gameOver = False;
    initDX();
    EXPECT_EQ((Numbers{fake::cursorShown, fake::musicReady}), (Numbers{0, 1}));
    EXPECT_EQ(drawn(), (Names{"no box", "color 16777215", "Times New Roman 12", "flip"}));
    reset();
    drawn();
    fConsole_Unload();
    EXPECT_TRUE(fake::windowOpen) << "can't be closed in a game";
    gameOver = True;
    destroy();
    EXPECT_FALSE(fake::windowOpen || fake::musicReady || dd || dx);
    EXPECT_EQ((Numbers{fake::cursorShown, fConsole.hWnd, gameOver}), (Numbers{1, 0, True}));
    destroy();
    Names steps;
    for (const char* step :
         {"initDX - getting screen resolution", "initDX - initializing directdraw",
          "initDX - setting up the primary surface", "initDX - setting up the back buffer",
          "initDX - test flipping...", "initDX - setting up directinput",
          "initDX - setting up the keyboard", "initDX - setting up the mouse",
          "initDX - setting up the source color key", "initDX - setting up sound system",
          "initVariables - erasing old variables", "initVariables - resetting counters",
          "destroy - shutting down directx", "destroy - shutting down directx"}) {
      steps.push_back(step + std::string(3, ' '));
    }
    EXPECT_EQ(logged(), steps);
    closeLog();
  }
  EXPECT_EQ(
      (Numbers{screenWidth, screenHeight, sampleDesc.flags, sampleFormat.formatTag,
               sampleFormat.channels, sampleFormat.samplesPerSecond, sampleFormat.bitsPerSample,
               sampleFormat.blockAlign, sampleFormat.bytesPerSecond}),
      (Numbers{1024, 768, 0xE2, 1, 2, 22050, 16, 4, 88200}));
}

}  // namespace glonks
