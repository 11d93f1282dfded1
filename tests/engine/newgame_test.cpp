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

TEST_F(NewGameTest, SamplesAreLoadedInTheirOrderAndEachStandsInItsPlace) {
  reset();
  std::string all;
  for (const std::string& sample : fake::samplesLoaded) all += sample + " ";
  EXPECT_EQ(all,
            "_changerow _moverow _gameover _connect01 _connect02 _connect03 _pop01 _slam01 "
            "_gorgon01 _coin01 _gorgon02 _calculate01 _calculate02 _bowling01 _frog01 _frog02 "
            "_frog03 _detonate _music01 _bauble01 _bauble02 _clapping01 _clapping02 _clapping03 ");
  auto state = gameState();
  std::istringstream names(all);
  for (std::string name; names >> name;) {
    const std::string set = name.substr(1, name.size() - 3) + "Sounds";
    EXPECT_PRED2(holds, state[state.count(set) != 0 ? set : name], name);
  }
}

TEST_F(NewGameTest, PicturesAreLoadedInTheirOrderAndStandInTheirPlaces) {
  const std::pair<const char*, const char*> frames[] = {{"Freestyle", "frame"},
                                                        {"Arcade", "frameA"},
                                                        {"B-Type", "frameB"},
                                                        {"Midnight Bowling", "frameM"},
                                                        {"none", "frameM"}};
  for (const auto& [mode, frame] : frames) {
    gameMode = modeTitled(mode);
    std::string loaded;
    fake::onPicture = [&](const std::string& name) { loaded += name + " "; };
    reset(3);
    const std::string letters = "A B C D E F G H I J K L M N O P Q R S T U V W X Y Z ! Space ";
    const std::string other = "frog01 frog02 frog03 frog04 frog05 ";
    EXPECT_EQ(loaded, "pointer zap_v zap_h " + (*mode == 'n' ? "" : frame + std::string(" ")) +
                          letters + "0 1 2 3 4 5 6 7 8 9 " + other + "explosion plate_03 ");
    auto state = gameState();
    EXPECT_EQ(state["frameSurface"] + state["plateSurface"], frame + std::string("plate_03"));
    EXPECT_EQ(state["glyphSurfaces"] + state["frogPictures"],
              letters + "0 1 2 3 4 5 6 7 8 9 " + other);
    EXPECT_EQ(state["pointerSurface"] + state["zapVSurface"] + state["zapHSurface"] +
                  state["explosionSurface"],
              "pointerzap_vzap_hexplosion");
  }
  fake::onPicture = nullptr;
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
