#include "shell/fmain.h"

#include "game/model.h"
#include "shell/menucontrols.h"
#include "shell/toolkit/toolkit.h"
#include "storage/log.h"
#include "storage/scrambledfiles.h"
#include "tests/fakes/clock.h"
#include "tests/fakes/sound.h"
#include "tests/fakes/window.h"
#include "tests/shell/later.h"
#include "tests/tempfolder.h"

namespace glonks {
namespace {

using Texts = std::vector<std::string>;

// The main window as a player has it, with real controls and no screen.
class MainWindowTest : public TempFolder {
 protected:
  MainWindowTest() {
    fake::resetClock();
    fake::resetSound();
    fake::resetWindow();
    makeKeys(keySeed, keyDrawArgument, keyScale);
    fMain_Form_Load();
    showForm(fMain);
    letMessagesThrough();
    window = shownWindow();
  }
  ~MainWindowTest() override {
    hideForm(fMain);
    closeLog();
  }
  void clickPlay() const {
    QTest::mouseClick(playButton(window), Qt::LeftButton);
    letMessagesThrough();  // brings what the click has raised
  }
  std::string messageOfPlay() const {
    answered(Qt::Key_Return, [this] { clickPlay(); });
    return lastMessage;
  }
  QWidget* window = nullptr;
};

TEST_F(MainWindowTest, StartShowsPageZeroWithAllModesAndNothingChosen) {
  EXPECT_EQ(tMode.items, (Texts{"Freestyle", "Arcade", "B-Type"}));
  EXPECT_TRUE(tMode.listIndex == -1 && tLevels.items.empty());
  EXPECT_EQ(textOf(scoreModes), "Freestyle");
  EXPECT_TRUE(songs.items.size() == 4 && std::is_sorted(songs.items.begin(), songs.items.end()));
  for (const Frame& page : frame) {
    EXPECT_EQ(page.visible, flagOf(&page == &frame[0]));
    EXPECT_EQ(page.enabled, page.visible);
  }
}

TEST_F(MainWindowTest, ModesShowTheirDescriptionAndTheirLevels) {
  const auto putLevels = [](const char* plain) {
    putBytes("\\plain", plain);
    scrambleFile("\\plain", "\\init\\6537");
  };
  ownDataFolders();
  putLevels("One, two\r\n 17 \r\nLast\r\n9");
  const std::tuple<const char*, const char*, Texts> table[] = {
      {"Arcade", "Every level challenges you", {"One, two", "Last"}},
      {"B-Type", "B-Type begins with pieces already", {"Mild", "Medium", "Spicy"}},
      {"Freestyle", "Freestyle is the ultimate", {"No levels to select.  Just click Play!"}},
      {"Arcade", "Every level challenges you", {"One, two", "Last"}}};
  for (const auto& [mode, description, levels] : table) {
    setText(tMode, mode);
    EXPECT_PRED2(holds, tModeDesc.caption, description);
    EXPECT_EQ(tLevels.items, levels) << mode;
    EXPECT_EQ(tLevels.listIndex, -1) << mode;
    tLevels.listIndex = 0;
  }
  EXPECT_EQ(tLevels.itemData, (std::vector<i32>{17, 9}));
  for (const char* plain : {"Alone\r\n", "Level\r\nseven\r\n"}) {
    putLevels(plain);
    EXPECT_PRED2(holds, errorOf([] { setText(tMode, "Arcade"); }), "\\init\\6537") << plain;
  }
}

TEST_F(MainWindowTest, PlayAsksForWhatIsMissing) {
  EXPECT_EQ(messageOfPlay(), "Please select a game mode.");
  setText(tMode, "Arcade");
  EXPECT_EQ(messageOfPlay(), "Please select a level.");
  setText(tMode, "B-Type");
  EXPECT_PRED2(holds, messageOfPlay(), "B-Type can't be played yet.");
  EXPECT_TRUE(window->isVisible() && !fake::windowOpen);
}

TEST_F(MainWindowTest, GameRunsInsideTheClickAndLeavesTheMenuAsItWas) {
  setText(tMode, "Freestyle");
  for (i32 game = 1; game <= 2; ++game) {
    i32 passes = 0;
    fake::windowMessages = [&] {
      ++fake::clockNow;
      if (++passes == 3000) fake::pressKeys({1});
      if (passes != 100) return;
      EXPECT_TRUE(score == 0 && fallingPiecesUpper == -1) << "a second game starts clean";
      EXPECT_FALSE(window->isVisible());
      clickPlay();  // out of reach
    };
    clickPlay();
    fake::windowMessages = nullptr;
    EXPECT_GE(passes, 3000);
    EXPECT_GE(fallingPiecesUpper, 0);
    EXPECT_TRUE(window->isVisible() && !fake::windowOpen);
    EXPECT_EQ(textOf(tMode), "Freestyle");
    score = 999;
  }
  const std::string log = bytesOf("\\log.txt");
  std::size_t at = 0;
  for (const std::string step :
       {"initDX - getting screen resolution", "initDX - setting up sound system",
        "initVariables - resetting counters", "play - entering main loop",
        "destroy - shutting down directx", "initDX - getting screen resolution"}) {
    at = log.find("04:05:06 :: " + step + "   \r\n", at + 1);
    ASSERT_NE(at, std::string::npos) << step;
  }
}

TEST_F(MainWindowTest, ClosingEndsTheLogAndQuitDoesNot) {
  later([this] { window->close(); });
  runEvents();
  EXPECT_PRED2(holds, bytesOf("\\log.txt"), "LOG CLOSED ON 01/02/03 AT 04:05:06\r\n");
  fMain_Form_Load();
  later(mExit_Click);
  runEvents();
  EXPECT_FALSE(holds(bytesOf("\\log.txt"), "CLOSED"));
}

}  // namespace
}  // namespace glonks
