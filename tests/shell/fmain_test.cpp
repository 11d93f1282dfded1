#include "shell/fmain.h"

#include "present/screen/messages.h"

#include <QComboBox>
#include <QDesktopServices>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QTextBrowser>

#include "game/model/model.h"
#include "shell/bandspage.h"
#include "shell/fpieces.h"
#include "shell/fsplash.h"
#include "shell/ftip.h"
#include "shell/links.h"
#include "shell/menucontrols.h"
#include "shell/newgamepage.h"
#include "shell/storepage.h"
#include "shell/toolkit/toolkit.h"
#include "storage/files/log.h"
#include "storage/files/scrambledfiles.h"
#include "storage/scores.h"
#include "storage/store.h"
#include "tests/fakes/clock.h"
#include "tests/fakes/sound.h"
#include "tests/fakes/window.h"
#include "tests/shell/later.h"
#include "tests/tempfolder.h"

namespace glonks {
namespace {

using Texts = std::vector<std::string>;

// The program as a player has it, with real controls and no screen.
class MainWindowTest : public TempFolder {
 protected:
  MainWindowTest() {
    fake::resetClock();
    fake::resetSound();
    fake::resetWindow();
    clearItems(allBands);
    clearItems(tLevels);
    fTip_Form_Load();
    letMessagesThrough();
    window = shownWindow("Glonks");
  }
  ~MainWindowTest() override {
    hideForm(fMain);
    while (QWidget* other = shownWindow()) other->close();
    closeLog();
  }
  static void putScrambled(const std::string& path, const std::string& plain) {
    putBytes("\\plain", plain);
    std::filesystem::remove(nativePath(path));
    scrambleFile("\\plain", path);
  }
  void press(const char* hint) const {
    QTest::mouseClick(hotSpot(window, hint), Qt::LeftButton);
    letMessagesThrough();  // brings what the click has raised
  }
  void choose(const QString& menuCaption, const QString& caption) const {
    for (const QAction* menu : static_cast<QMainWindow*>(window)->menuBar()->actions()) {
      if (menu->text() != menuCaption) continue;
      for (QAction* entry : menu->menu()->actions()) {
        if (entry->text() == caption) entry->trigger();
      }
    }
    letMessagesThrough();
  }
  std::string messageOfPlay() const {
    answered(Qt::Key_Return, [this] { press("Play"); });
    return lastMessage;
  }
  // Runs the program by its events, beginning with the action, until it ends.
  static void endBy(const std::function<void()>& action) {
    later(action);
    runEvents();
  }
  QWidget* window = nullptr;
};

TEST_F(MainWindowTest, StartShowsTheTitleWithEverythingRead) {
  EXPECT_EQ(tMode.items, (Texts{"Freestyle", "Arcade", "B-Type"}));
  EXPECT_TRUE(tMode.listIndex == -1 && tLevels.items.empty());
  EXPECT_EQ(textOf(scoreModes), "Freestyle");
  EXPECT_TRUE(scores_freestyle.items.size() == 10 && scores_freestyle.visible == True);
  EXPECT_TRUE(songs.items.size() == 4 && std::is_sorted(songs.items.begin(), songs.items.end()));
  EXPECT_TRUE(bank == 5 && HScroll2.value == 70 && allBands.items.size() == 4);
  EXPECT_EQ(themePic.picture, "\\themes\\Cells\\plate_01.bmp");
  // The title covers the first page, which the keys can't reach either.
  EXPECT_TRUE(frame[0].visible == True && frame[7].visible == True);
  EXPECT_EQ(window->focusWidget(), hotSpot(window, "Start"));
  QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(window->focusWidget(), hotSpot(window, "Start"));
  press("Start");
  EXPECT_TRUE(hotSpot(window, "Play")->isVisible() && !hotSpot(window, "Start")->isVisible());
}

TEST_F(MainWindowTest, MenuEntriesShowTheirPageOrWindow) {
  const std::tuple<const char*, const char*, std::size_t> pages[] = {
      {"&Game", "&New", 0},      {"&Options", "&Spend Credits", 3}, {"&Options", "&Backgrounds", 4},
      {"&Options", "&Music", 5}, {"&View", "&High Scores", 1},      {"&View", "&Bands", 6},
      {"&View", "&Credits", 2},  {"&View", "&Credits", 2},          {"&Game", "&New", 0}};
  setText(tMode, "B-Type");
  for (const auto& [menu, entry, page] : pages) {
    choose(menu, entry);
    for (const Frame& other : frame) {
      EXPECT_TRUE(other.visible == flagOf(&other == &frame[page])) << entry;
      EXPECT_EQ(other.enabled, other.visible);
    }
  }
  EXPECT_TRUE(textOf(tMode) == "B-Type" && tLevels.items.size() == 3);
  for (const auto& [entry, title] : {std::pair{"&About", "about"},
                                     {"&Pieces", "the specimen box"},
                                     {"&Controls", "the control room"}}) {
    choose("&Help", entry);
    EXPECT_TRUE(shownWindow(title) != nullptr && !shownWindow(title)->isModal()) << title;
  }
  answered(Qt::Key_Return, [this] { choose("&Help", "&Manual"); });
  EXPECT_PRED2(holds, lastMessage, "\\manual.exe") << "there is none in this folder";
  endBy([this] { window->close(); });  // with the others still open
}

// A hot spot lies over a button that its page's picture draws: orange with a lettering in it, and
// none of it reaches beyond.
TEST_F(MainWindowTest, HotSpotsLieOverTheButtonsOfTheirPictures) {
  std::vector<std::pair<const Image*, const Image*>> spots = {
      {&main_BtnRun, &Image7}, {&launch, &Image2}, {&Image6, &Image10}};
  for (const Image& buy : purchase) spots.emplace_back(&buy, &Image4);
  for (const auto& [spot, behind] : spots) {
    const QImage picture(GLONKS_SOURCE "/assets" + QString::fromStdString(behind->picture).mid(1));
    ASSERT_FALSE(picture.isNull()) << behind->picture;
    const QImage page = picture.scaled(behind->width / 15, behind->height / 15);
    const QRect area((spot->left - behind->left) / 15, (spot->top - behind->top) / 15,
                     spot->width / 15, spot->height / 15);
    int inside = 0;
    int around = 0;
    for (int i = 0; i < page.width() * page.height(); ++i) {
      const QPoint at(i % page.width(), i / page.width());
      const QColor colour = page.pixelColor(at);
      if (colour.red() < 150 || colour.red() < colour.blue() + 60) continue;
      if (area.contains(at)) ++inside;
      if (area.adjusted(-6, -6, 6, 6).contains(at)) ++around;
    }
    EXPECT_GT(inside, 0.6 * area.width() * area.height()) << spot->hint;
    EXPECT_EQ(around, inside) << spot->hint;
  }
}

TEST_F(MainWindowTest, SpecimensTellAboutThemselvesUntilTheBoxIsClosed) {
  const std::string beginnings[] = {"Glonk", "Glonk",         "Glonk", "Glonk", "Slam",   "Bombs",
                                    "Baub",  "Upon settling", "Calc",  "Gorg",  "Shift",  "Rock",
                                    "Rock",  "Rock",          "Bowl",  "Money", "B-Type", "Music"};
  choose("&Help", "&Pieces");
  QWidget* box = shownWindow("the specimen box");
  EXPECT_EQ(pieceDesc.text, "Click on a piece for its description.\r\n");
  for (std::size_t i = 0; i < std::size(beginnings); ++i) {
    run(pClick[i].click);
    EXPECT_EQ(pieceDesc.text.substr(0, beginnings[i].size()), beginnings[i]);
  }
  QTest::mouseClick(hotSpot(box, "Diamond"), Qt::LeftButton);
  letMessagesThrough();
  EXPECT_TRUE(box->findChild<QPlainTextEdit*>()->toPlainText().startsWith("Upon settling"));
  choose("&Help", "&Pieces");
  EXPECT_PRED2(holds, pieceDesc.text, "Upon settling") << "still open";
  box->close();
  choose("&Help", "&Pieces");
  EXPECT_PRED2(holds, pieceDesc.text, "Click on a piece");
}

TEST_F(MainWindowTest, TipIsALineOfItsFileOrAGreeting) {
  for (const auto& [file, shown] :
       {std::pair{"One, \"two\", three\r\n", "One, \"two\", three"}, {"", "Welcome to Glonks!"}}) {
    putScrambled("\\init\\1182", file);
    EXPECT_PRED2(holds, pickTip(), shown);
  }
  std::filesystem::remove(nativePath("\\init\\1182"));
  EXPECT_PRED2(holds, pickTip(), "Welcome to Glonks!");
  showForm(fTip);
  EXPECT_NE(shownWindow(" "), nullptr);
}

TEST_F(MainWindowTest, ThemeIsStoredWhenChosenAndItsPlatesLeafedThrough) {
  choose("&Options", "&Backgrounds");
  const std::string before = bytesOf("\\init\\6702");
  setValue(HScroll1, 3);
  EXPECT_EQ(themePic.picture, "\\themes\\Cells\\plate_03.bmp");
  EXPECT_EQ(bytesOf("\\init\\6702"), before);
  auto* combo = static_cast<QComboBox*>(window->focusWidget());
  QTest::keyClick(combo, Qt::Key_Down);
  EXPECT_TRUE(themeName == "Embers" && HScroll1.value == 1);
  EXPECT_EQ(themePic.picture, "\\themes\\Embers\\plate_01.bmp");
  EXPECT_NE(bytesOf("\\init\\6702"), before);
  themeName = "gone";
  saveStore();
  closeLog();
  fMain_Form_Load();
  EXPECT_EQ(themeName, "Cells") << "the first, in the place of an unknown one";
}

TEST_F(MainWindowTest, LinksGoToTheSystem) {
  const std::string zebras = "Zebra,https://z.example/\r\n\"A, B\"\r\nhttps://a.example/\r\n";
  QTextBrowser browser;  // stands for the player's
  QDesktopServices::setUrlHandler("https", &browser, "setSource");
  // Without its file, or with a damaged one, the page is empty.
  for (const std::string& end : {std::string("missing"), std::string("Half a band"),
                                 std::string("Mute,\r\nZebra,https://last.example/\r\n")}) {
    putScrambled("\\init\\6859", zebras + end);
    if (end == "missing") std::filesystem::remove(nativePath("\\init\\6859"));
    clearItems(allBands);
    readBands();
    EXPECT_EQ(allBands.items.size(), end.back() == '\n' ? 4U : 0U) << end;
  }
  EXPECT_EQ(allBands.items, (Texts{"A, B", "Mute", "Zebra", "Zebra"}));
  EXPECT_PRED2(holds, bytesOf("\\log.txt"),
               ":: error 53, The file \"\\init\\6859\" can't be opened");
  EXPECT_PRED2(holds, bytesOf("\\log.txt"), ":: error 62, The file \"\\init\\6859\" is too short");
  choose("&View", "&Bands");
  const std::pair<const char*, const char*> table[] = {{"", ""},
                                                       {"A, B", "https://a.example/"},
                                                       {"Mute", "https://a.example/"},
                                                       {"Zebra", "https://last.example/"}};
  for (const auto& [band, link] : table) {
    setText(allBands, band);
    press("Open the band's page");
    EXPECT_EQ(browser.source().toString().toStdString(), link) << band;
  }
  fSplash_Image2_Click();
  EXPECT_EQ(browser.source().toString().toStdString(), makersAddress);
  QDesktopServices::unsetUrlHandler("https");
}

TEST_F(MainWindowTest, ModesShowTheirDescriptionAndTheirLevelsAndPlayAsksForWhatIsMissing) {
  ownFolderOfLinks("levels");
  putScrambled("\\init\\6537", "One, two\r\n 17 \r\nLast\r\n18");
  putScrambled("\\levels\\18", "1000\r\nLast\r\n");
  const std::string nothing = "No levels to select.  Just click Play!";
  const std::tuple<std::string, std::string, Texts, i16, std::string> table[] = {
      // mode, description, levels, the one selected, what Play says
      {"", "", {}, -1, "Please select a game mode."},
      {"Arcade", "Every level challenges", {"One, two", "Last"}, -1, "Please select a level."},
      {"B-Type", "B-Type begins", {"Mild", "Medium", "Spicy"}, 0, "B-Type can't be played yet."},
      {"Freestyle", "Freestyle is the ultimate", {nothing}, 0, ""},
      {"Arcade", "Every level", {"One, two", "Last"}, 0, "\"\\levels\\17\" can't be opened"},
      {"Arcade", "Every level", {"One, two", "Last"}, 1, "\"\\levels\\18\" is too short"}};
  mNew_Click();
  letMessagesThrough();
  for (const auto& [mode, description, levels, level, told] : table) {
    setText(tMode, mode);
    EXPECT_TRUE(holds(tModeDesc.caption, description) && tLevels.listIndex == -1) << mode;
    EXPECT_EQ(tLevels.items, levels) << mode;
    tLevels.listIndex = level;
    EXPECT_PRED2(holds, mode == "Freestyle" ? "" : messageOfPlay(), told);
    EXPECT_TRUE(window->isVisible() && !fake::windowOpen);
  }
}

TEST_F(MainWindowTest, GamesRunInsideTheClickAndComeBackToTheRightPage) {
  press("Start");
  setText(tMode, "Freestyle");
  for (const std::string& song : songNames) fake::brokenSongs.insert("\\music\\" + song);
  for (i16 game = 1; game <= 2; ++game) {
    i32 passes = 0;
    fake::windowMessages = [&] {
      ++fake::clockNow;
      if (++passes == 100) {
        EXPECT_TRUE(score == 0 && fallingPiecesUpper == -1) << "a second game starts clean";
        EXPECT_FALSE(window->isVisible());
        press("Play");  // out of reach
      }
      if (passes != 3000) return;
      bank = game;
      fake::pressKeys({1});
      if (game == 2) score = 30000;
      answerNext(Qt::Key_Return, QString::fromUtf8("Zoë"));
    };
    press("Play");
    fake::windowMessages = nullptr;
    EXPECT_GE(passes, 3000);
    EXPECT_TRUE(window->isVisible() && !fake::windowOpen);
    EXPECT_TRUE(textOf(tMode) == "Freestyle" && frame[game == 1 ? 0 : 1].visible == True);
    bank = 0;
    readStore();
    EXPECT_EQ(bank, game) << "credits are stored";
    for (const std::string& song : songNames) {  // each is tried again in the next game
      const auto& all = fake::songsOpened;
      EXPECT_GE(std::count(all.begin(), all.end(), "\\music\\" + song), game);
    }
  }
  EXPECT_TRUE(highScores[0].points == 30000 && highScores[0].playerName == "Zo\xeb");
  EXPECT_EQ(highScores[1].points, 25000);
  const std::string log = bytesOf("\\log.txt");
  std::size_t at = 0;
  for (const std::string step :
       {"initDX - getting screen resolution", "initVariables - resetting counters",
        "play - entering main loop", "destroy - shutting down directx", "initDX - getting"}) {
    at = log.find("04:05:06 :: " + step, at + 1);
    ASSERT_NE(at, std::string::npos) << step;
  }
}

TEST_F(MainWindowTest, ClosingStoresAndEndsTheLogAndQuitDoesNot) {
  HScroll2.value = 30;
  run(HScroll2.scroll);
  endBy([this] { choose("&Game", "&Quit"); });
  EXPECT_FALSE(holds(bytesOf("\\log.txt"), "CLOSED"));
  loadStore();
  EXPECT_EQ(musicVolume, 70);
  setValue(HScroll2, 30);
  endBy([this] { window->close(); });
  EXPECT_PRED2(holds, bytesOf("\\log.txt"), "LOG CLOSED ON 01/02/03 AT 04:05:06\r\n");
  loadStore();
  EXPECT_EQ(musicVolume, 30);
}

}  // namespace
}  // namespace glonks
