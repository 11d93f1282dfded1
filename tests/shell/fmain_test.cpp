#include "shell/fmain.h"

#include <QAbstractButton>
#include <QMainWindow>
#include <QMessageBox>
#include <QTest>

#include "game/model.h"
#include "present/console.h"
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
  }
  ~MainWindowTest() override {
    hideForm(fMain);
    closeLog();
  }

  static QWidget* window() {
    for (QWidget* top : QApplication::topLevelWidgets()) {
      if (top->windowTitle() == "Glonks" && qobject_cast<QMainWindow*>(top) != nullptr) return top;
    }
    return nullptr;
  }

  static void clickPlay() {
    for (auto* button : window()->findChildren<QAbstractButton*>()) {
      if (button->accessibleName() == "Play") QTest::mouseClick(button, Qt::LeftButton);
    }
    letMessagesThrough();  // brings what the click has raised
  }

  // Clicks Play where a message is expected, and gives its text.
  static std::string messageOfPlay() {
    QString text;
    later([&] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (box == nullptr) return;
      text = box->text();
      QTest::keyClick(box, Qt::Key_Return);
    });
    clickPlay();
    return text.toStdString();
  }
};

TEST_F(MainWindowTest, StartShowsPageZeroWithAllModesAndNothingChosen) {
  EXPECT_EQ(tMode.items, (Texts{"Freestyle", "Arcade", "B-Type"}));
  EXPECT_EQ(tMode.listIndex, -1);
  EXPECT_TRUE(tLevels.items.empty());
  EXPECT_EQ(textOf(scoreModes), "Freestyle");
  EXPECT_TRUE(songs.items.size() == 4 && std::is_sorted(songs.items.begin(), songs.items.end()));
  for (const Frame& page : frame) {
    EXPECT_EQ(page.visible, flagOf(&page == &frame[0]));
    EXPECT_EQ(page.enabled, page.visible);
  }
  EXPECT_EQ(bytesOf("\\log.txt"), "LOG OPENED ON 01/02/03 AT 04:05:06\r\n");
}

TEST_F(MainWindowTest, ModesShowTheirDescriptionAndTheirLevels) {
  ownDataFolders();
  putBytes("\\plain", "One, two\r\n 17 \r\nLast\r\n9");
  scrambleFile("\\plain", "\\init\\6537");
  for (i32 pick = 0; pick < 2; ++pick) {  // each pick reads the file anew
    setText(tMode, "Arcade");
    EXPECT_EQ(tLevels.items, (Texts{"One, two", "Last"}));
    EXPECT_EQ(tLevels.itemData, (std::vector<i32>{17, 9}));
    EXPECT_EQ(tLevels.listIndex, -1);
    tLevels.listIndex = 1;
  }
  EXPECT_EQ(tModeDesc.caption,
            "Every level challenges you with new situations and new goals.  How far can you go?");
  setText(tMode, "B-Type");
  EXPECT_EQ(tLevels.items, (Texts{"Mild", "Medium", "Spicy"}));
  EXPECT_TRUE(holds(tModeDesc.caption, "B-Type begins with pieces already in play.  Your goal"));
  setText(tMode, "Freestyle");
  EXPECT_EQ(tLevels.items, Texts{"No levels to select.  Just click Play!"});
  EXPECT_TRUE(holds(tModeDesc.caption, "ultimate Glonk dance party.  Every piece makes"));

  for (const char* plain : {"Alone\r\n", "Level\r\nseven\r\n"}) {
    putBytes("\\plain", plain);
    scrambleFile("\\plain", "\\init\\6537");
    EXPECT_PRED2(holds, errorOf([] { setText(tMode, "Arcade"); }), "\\init\\6537");
  }
}

TEST_F(MainWindowTest, PlayAsksForWhatIsMissing) {
  EXPECT_EQ(messageOfPlay(), "Please select a game mode.");
  setText(tMode, "Arcade");
  EXPECT_EQ(messageOfPlay(), "Please select a level.");
  setText(tMode, "B-Type");
  EXPECT_PRED2(holds, messageOfPlay(), "B-Type can't be played yet.");
  EXPECT_FALSE(fake::windowOpen);
  EXPECT_TRUE(window()->isVisible());
}

TEST_F(MainWindowTest, GameRunsInsideTheClickAndLeavesTheMenuAsItWas) {
  setText(tMode, "Freestyle");
  for (i32 game = 1; game <= 2; ++game) {
    bool hidden = false;
    i32 passes = 0;
    fake::windowMessages = [&] {
      ++fake::clockNow;
      if (++passes == 3000) fake::pressKeys({1});
      if (passes == 100) {
        EXPECT_EQ(score, 0) << "a second game starts clean";
        EXPECT_EQ(fallingPiecesUpper, -1);
        hidden = !window()->isVisible();
        clickPlay();  // out of reach
      }
    };
    clickPlay();
    fake::windowMessages = nullptr;
    EXPECT_TRUE(hidden);
    EXPECT_GE(passes, 3000);
    EXPECT_GE(fallingPiecesUpper, 0);
    EXPECT_FALSE(fake::windowOpen);
    EXPECT_TRUE(window()->isVisible());
    EXPECT_EQ(textOf(tMode), "Freestyle");
    score = 999;
  }
  const std::string log = bytesOf("\\log.txt");
  std::size_t at = 0;
  for (const char* step :
       {"initDX - getting screen resolution", "initDX - initializing directdraw",
        "initDX - setting up the primary surface", "initDX - setting up the back buffer",
        "initDX - test flipping...", "initDX - setting up directinput",
        "initDX - setting up the keyboard", "initDX - setting up the mouse",
        "initDX - setting up the source color key", "initDX - setting up sound system",
        "initVariables - erasing old variables", "initVariables - resetting counters",
        "play - initializing variables", "play - entering main loop",
        "destroy - shutting down directx", "initDX - getting screen resolution"}) {
    at = log.find(std::string("04:05:06 :: ") + step + "   \r\n", at);
    ASSERT_NE(at, std::string::npos) << step;
    ++at;
  }
}

TEST_F(MainWindowTest, DamagedGameFileEndsTheGameWithAnErrorThatNamesIt) {
  setText(tMode, "Freestyle");
  std::filesystem::remove(folder / "images");
  EXPECT_PRED2(holds, errorOf([] { clickPlay(); }), "\\images\\loading.bmp");
  gameOver = True;
  fConsole_Unload();
}

TEST_F(MainWindowTest, ClosingEndsTheLogAndQuitDoesNot) {
  later([] { window()->close(); });
  runEvents();
  EXPECT_PRED2(holds, bytesOf("\\log.txt"), "LOG CLOSED ON 01/02/03 AT 04:05:06\r\n");
  fMain_Form_Load();
  later(mExit_Click);
  runEvents();
  EXPECT_FALSE(holds(bytesOf("\\log.txt"), "CLOSED"));
}

}  // namespace
}  // namespace glonks
