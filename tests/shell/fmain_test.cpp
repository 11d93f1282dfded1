#include "shell/fmain.h"

#include <QAbstractItemView>
#include <QAction>
#include <QDesktopServices>
#include <QListWidget>
#include <QMenuBar>
#include <QTextBrowser>

#include "game/model/model.h"
#include "present/screen/fconsole.h"
#include "shell/backgroundspage.h"
#include "shell/bandspage.h"
#include "shell/fcontrols.h"
#include "shell/fpieces.h"
#include "shell/ftip.h"
#include "shell/menucontrols.h"
#include "shell/musicpage.h"
#include "shell/newgamepage.h"
#include "shell/padmenu.h"
#include "shell/playbutton.h"
#include "shell/scorespage.h"
#include "shell/storepage.h"
#include "shell/toolkit/toolkit.h"
#include "storage/files/log.h"
#include "tests/fakes/clock.h"
#include "tests/fakes/sound.h"
#include "tests/fakes/window.h"
#include "tests/shell/later.h"
#include "tests/tempfolder.h"
#include "tests/virtualpad.h"

namespace glonks {
namespace {

using Texts = std::vector<std::string>;

// The program as a player has it, with real controls and no screen.
class MainWindowTest : public TempFolder {
 protected:
  MainWindowTest() {
    fake::resetSound();
    fake::resetWindow();
    clearItems(allBands);
    fTip_Form_Load();
    window = shownWindow("Glonks");
  }
  ~MainWindowTest() override {
    hideForm(fMain);
    while (QWidget* other = shownWindow()) other->close();
    closeLog();
  }
  // "missing": there is no such file.
  static void putOrRemove(const std::string& path, const std::string& plain) {
    putScrambled(path, plain);
    if (plain == "missing") std::filesystem::remove(nativePath(path));
  }
  void press(const char* hint) const {
    QTest::mouseClick(hotSpot(window, hint), Qt::LeftButton);
    letFormMessagesThrough();  // brings what the click has raised
  }
  void choose(const QString& caption) const {
    for (QAction* entry : window->findChildren<QAction*>()) {
      if (entry->text() == caption) entry->trigger();
    }
    letFormMessagesThrough();
  }
  QWidget* window = nullptr;
};

TEST_F(MainWindowTest, StartShowsATipOrAGreetingAndTheTitleWithEverythingRead) {
  EXPECT_TRUE(scores_freestyle.items.size() == 10 && scores_freestyle.visible == True);
  EXPECT_TRUE(songs.items.size() == 4 && std::is_sorted(songs.items.begin(), songs.items.end()));
  EXPECT_TRUE(bank == 5 && allBands.items.size() == 7 && textOf(scoreModes) == "Freestyle");
  // The title covers the first page, which the keys can't reach either.
  EXPECT_TRUE(frame[0].visible == True && frame[7].visible == True);
  QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(window->focusWidget(), hotSpot(window, "Start"));
  for (const std::string tip : {"One, \"two\", three", "", "missing"}) {
    putOrRemove("\\init\\1182", tip);
    EXPECT_EQ(pickTip(), tip[0] == 'O' ? tip : "Welcome to Glonks!  Have a good game.");
  }
  showForm(fTip);
  EXPECT_NE(shownWindow(" "), nullptr);
}

// A hot spot lies over a button that its page's picture draws: orange up to its edges, and not
// beyond them.
TEST_F(MainWindowTest, HotSpotsLieOverTheButtonsOfTheirPictures) {
  std::vector<std::pair<const Image*, const Image*>> spots = {
      {&main_BtnRun, &Image7}, {&launch, &Image2}, {&Image6, &Image10}};
  for (const Image& buy : purchase) spots.emplace_back(&buy, &Image4);
  for (const auto& [spot, behind] : spots) {
    const QImage picture(GLONKS_SOURCE "/assets" + QString::fromStdString(behind->picture).mid(1));
    const QImage page = picture.scaled(behind->width / 15, behind->height / 15);
    const QRect area((spot->left - behind->left) / 15, (spot->top - behind->top) / 15,
                     spot->width / 15, spot->height / 15);
    QRect drawn;  // the orange around the spot
    for (int x = area.left() - 6; x <= area.right() + 6; ++x) {
      for (int y = area.top() - 6; y <= area.bottom() + 6; ++y) {
        const QColor colour = page.pixelColor(x, y);
        if (colour.red() > colour.blue() + 60) drawn |= QRect(x, y, 1, 1);
      }
    }
    EXPECT_TRUE(area.contains(drawn) && drawn.contains(area.adjusted(4, 4, -4, -4))) << spot->hint;
  }
}

TEST_F(MainWindowTest, MenuEntriesShowTheirPageOrWindowAndSpecimensTellAboutThemselves) {
  const char* const pages[] = {"&New",         "&High Scores", "&Credits", "&Spend Credits",
                               "&Backgrounds", "&Music",       "&Bands"};
  for (std::size_t page = 0; page < std::size(pages); ++page) {
    choose(pages[page]);
    for (const Frame& each : frame) {
      EXPECT_TRUE(each.visible == flagOf(&each == &frame[page]) && each.enabled == each.visible);
    }
  }
  for (const char* entry : {"&About", "&Pieces", "&Controls"}) choose(entry);
  for (const char* title : {"about", "the specimen box", "the control room"}) {
    EXPECT_TRUE(shownWindow(title) != nullptr && !shownWindow(title)->isModal()) << title;
  }
  answered(Qt::Key_Return, [this] { choose("&Manual"); });
  EXPECT_PRED2(holds, lastMessage, "\\manual.exe") << "there is none in this folder";
  std::string firstLetters;
  for (const Image& spot : pClick) {
    run(spot.click);
    firstLetters += pieceDesc.text[0];
  }
  EXPECT_EQ(firstLetters, "GGGGSBBUCGSRRRBMBM");
  for (const char* text : {"Music Notes", "Click on a piece"}) {
    choose("&Pieces");  // first while the box is still open
    EXPECT_PRED2(holds, pieceDesc.text, text);
    shownWindow("the specimen box")->close();
  }
}

TEST_F(MainWindowTest, EverythingHasANameForThoseWhoCannotSeeIt) {
  const std::pair<const char*, Texts> table[] = {
      // menu entry, what is found there and nowhere else
      {"", {"Slam them.", "Start"}},
      {"&New", {"Mode: Arcade (Every", "Level (Every", "Play"}},
      {"&High Scores", {"The best ten", "podium"}},
      {"&Credits", {"Glonks stand below"}},
      {"&Spend Credits", {"Bank: 5 credits", "Total of a Bomb: 1", "a Bomb (Cost: 4 credits)"}},
      {"&Backgrounds", {"Theme: Cells", "Preview (Picture 1 of Cells)", "this theme, 1 to 5"}},
      {"&Music", {"Volume ()", "Songs ()"}},
      {"&Bands", {"Who plays here (Pick a band"}},
      {"&About", {"Made by the Glonks makers.", "Open the makers' page"}},
      {"&Pieces", {"Description ()", "Gorgon (Gorgons function"}},
      {"&Controls", {"The Keys (Up and Down: move"}}};
  setText(tMode, "Arcade");
  showForm(fTip);
  std::string elsewhere = namesIn(shownWindow(" "));
  shownWindow(" ")->close();
  for (const auto& [entry, texts] : table) {
    choose(entry);
    QWidget* shown = nullptr;
    for (const char* title : {"about", "the specimen box", "the control room", "Glonks"}) {
      if (shown == nullptr) shown = shownWindow(title);
    }
    const std::string found = namesIn(shown);
    for (const std::string& text : texts) {
      EXPECT_TRUE(holds(found, text) && !holds(elsewhere, text)) << entry << text << found;
    }
    elsewhere += found;
    if (shown != window) shown->close();
  }
  later([] {
    EXPECT_PRED2(holds, namesIn(QApplication::activeModalWidget()), "Cancel ()\nWho? ()\n");
    QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return);
  });
  inputBox("Who?", 5);
}

TEST_F(MainWindowTest, LinksGoToTheSystem) {
  QTextBrowser browser;  // stands for the player's
  QDesktopServices::setUrlHandler("https", &browser, "setSource");
  // Without its file, or with a damaged one, the page is empty.
  const std::string two = "Zebra,https://z.example/\r\n\"A, B\",https://a.example/\r\n";
  for (const std::string end : {"missing", "Half a band", "Mute,\r\nZebra,https://last.example/"}) {
    putOrRemove("\\init\\6859", end == "missing" ? end : two + end);
    clearItems(allBands);
    readBands();
    EXPECT_EQ(allBands.items, end[1] == 'u' ? Texts({"A, B", "Mute", "Zebra", "Zebra"}) : Texts());
  }
  EXPECT_PRED2(holds, bytesOf("\\log.txt"), "\"\\init\\6859\" is too short");
  choose("&Bands");
  for (const char* band : {"Zebra", "Mute"}) {
    setText(allBands, band);
    press("Open the band's page");
    EXPECT_EQ(browser.source().toString(), "https://last.example/") << band;
  }
  choose("&About");
  QTest::mouseClick(hotSpot(shownWindow("about"), "Open the makers' page"), Qt::LeftButton);
  EXPECT_EQ(browser.source().toString(), "https://glonks.example/");
  QDesktopServices::unsetUrlHandler("https");
}

TEST_F(MainWindowTest, ModesShowTheirDescriptionAndTheirLevelsAndPlayAsksForWhatIsMissing) {
  ownFolderOfLinks("levels");
  putScrambled("\\init\\6537", "One, two\r\n 17 \r\nLast\r\n18");
  putScrambled("\\levels\\18", "1000\r\nLast\r\n");
  const Texts none = {"No levels to select.  Just click Play!"};
  const std::tuple<std::string, std::string, Texts, i16, std::string> table[] = {
      // mode, description, levels, the one selected, what Play says
      {"Arcade", "Every level challenges", {"One, two", "Last"}, -1, "Please select a level."},
      {"B-Type", "B-Type begins", {"Mild", "Medium", "Spicy"}, -1, "Please select a level."},
      {"B-Type", "B-Type begins", {"Mild", "Medium", "Spicy"}, 2, "btype.bmp"},
      {"Midnight Bowling", "Ten pins", none, -1, "pin.bmp"},
      {"", "Ten pins", none, -1, "Please select a game mode."},
      {"Arcade", "Every level", {"One, two", "Last"}, 0, "\"\\levels\\17\" can't be opened"},
      {"Arcade", "Every level", {"One, two", "Last"}, 1, "\"\\levels\\18\" is too short"}};
  ownFolderOfLinks("images");
  for (const char* piece : {"btype", "pin"}) {
    std::filesystem::remove(folder / "images" / (piece + std::string(".png")));
  }
  stockOf(midnightBowlingItem) = 1;
  listModes();
  choose("&New");
  for (const auto& [mode, description, levels, level, told] : table) {
    setText(tMode, mode);
    EXPECT_TRUE(holds(tModeDesc.caption, description) && tLevels.items == levels) << mode;
    tLevels.listIndex = level;
    answered(Qt::Key_Return, [this] { press("Play"); });
    EXPECT_TRUE(holds(lastMessage, told) && window->isVisible() && !fake::windowOpen) << told;
  }
  EXPECT_EQ(stockOf(midnightBowlingItem), 1) << "a game that doesn't start takes no ticket";
}

TEST_F(MainWindowTest, AnArcadeLevelThatIsSelectedTellsItsGoals) {
  ownFolderOfLinks("levels");
  const std::string arcade = "Every level challenges";
  const Texts table[] = {
      // piece, score, limit, survival, avoid and land goal; the words
      {"20,Gorgon,30000,-1,-1,-1,-1,-1,-1,20,Bowling Ball",
       "Land 20 Bowling Balls.  Remove 20 Gorgons.  Score 30000 points."},
      {"1,Gorgon,1,4,0,-1,-1,4,Rock,-1,-1",
       "Remove at most 3 Rocks.  Remove 1 Gorgon.  Score 1 point.  You have 3 minutes 59."},
      {"-1,-1,-1,-1,-1,2,0,1,Money,-1,-1", "Remove no Money pieces.  Survive 1 minute 59."},
      {"2,Music,-1,1,30,-1,-1,-1,-1,1,Money",
       "Land 1 Money piece.  Remove 2 Music Notes.  You have 59 seconds."},
      {"1,Music,-1,-1,-1,-1,-1,2,Rock,-1,-1", "Remove at most 1 Rock.  Remove 1 Music Note."},
      {"5,Nothing,0,1,0,0,59,-1,Rock,0,Rock", arcade},  // none of these is on, open or runs
      {"5,Glonk", arcade}};
  std::string open;
  for (std::size_t level = 0; level < std::size(table); ++level) {
    const std::string number = std::to_string(level);
    putScrambled("\\levels\\" + number, "1000\r\nT\r\nN\r\n7\r\n" + table[level][0]);
    open += "Level\r\n" + number + "\r\n";
  }
  putScrambled("\\init\\6537", open);
  press("Start");
  setText(tMode, "Arcade");
  letFormMessagesThrough();
  for (auto* list : window->findChildren<QListWidget*>()) {
    if (list->isVisible()) list->setFocus();
  }
  for (const Texts& row : table) {
    const auto goOn = [this] { QTest::keyClick(window->focusWidget(), Qt::Key_Down); };
    row == table[6] ? answered(Qt::Key_Return, goOn) : goOn();
    EXPECT_EQ(tModeDesc.caption.substr(0, std::max(row[1].size(), arcade.size())), row[1]);
  }
  EXPECT_PRED2(holds, lastMessage, "\"\\levels\\6\" is too short") << "and the menu stays";
  for (const char* mode : {"B-Type", "Freestyle", "Arcade"}) {
    setListIndex(tLevels, 0);
    setText(tMode, mode);
    const std::string own = tModeDesc.caption;
    EXPECT_TRUE(tLevels.listIndex == -1 && holds(own, mode[0] == 'A' ? arcade : mode)) << own;
    if (mode[0] != 'A') setListIndex(tLevels, 0);
    EXPECT_EQ(tModeDesc.caption, own);
  }
  fake::windowMessages = [] {
    if (++fake::clockNow % 2000 != 0) return;
    levelWon = True, rewardLevelName = "Won", rewardLevelFile = 2;
    fake::pressKeys({1});
    answerNext(Qt::Key_Return);  // congratulations
  };
  setListIndex(tLevels, 2);
  press("Play");
  EXPECT_TRUE(tLevels.listIndex == 2 && tModeDesc.caption == table[2][1]) << tModeDesc.caption;
  EXPECT_TRUE(tLevels.items.size() == 8 && tLevels.items.back() == "Won");
}

TEST_F(MainWindowTest, PrizesAreStoredBeforeTheyAreToldAndTicketsAndSongsComeAndGo) {
  const std::string lastSong = "Zigzag Ferry - Last Boat at Midnight";
  const auto buy = [](i16 slot) {
    answered(Qt::Key_Return, [slot] { run(purchase[static_cast<std::size_t>(slot)].click); });
  };
  press("Start");
  EXPECT_EQ(tMode.items.size(), 3U);
  bank = 160;
  notesCollected = 2;
  buy(midnightBowlingItem);
  EXPECT_PRED2(holds, lastMessage, "a game of Midnight Bowling for 40 credits?");
  for (const std::size_t count : {5U, 6U}) {
    buy(bonusSongItem);
    EXPECT_TRUE(holds(lastMessage, "a Bonus Song for 40 credits?") && songNames.size() == count);
  }
  setText(tMode, "Midnight Bowling");
  bowlingRolls = {9};
  i32 passes = 0;
  std::string stored;
  fake::windowMessages = [&] {
    ++fake::clockNow;
    if (++passes != 2) return;
    EXPECT_EQ(std::exchange(bowlingRolls, {10, 10, 10}).size(), 0U) << "from the game before";
    notesCollected = 3;
    fake::clockNow += 1000;
    fake::pressKeys({1});
    answerNext(Qt::Key_Return);  // the prize, and then the song
    later([&] { later([&] { loadStore(), stored = lastMessage, answerNext(Qt::Key_Return); }); });
  };
  press("Play");
  EXPECT_PRED2(holds, stored, "You have bowled 60 points.  You win 3 credits!");
  EXPECT_PRED2(holds, lastMessage, lastSong);
  EXPECT_EQ(bank, 43) << "when the prize was told";
  EXPECT_TRUE(songNames == songs.items && songs.items.back() == lastSong);
  EXPECT_TRUE(tMode.items.size() == 3 && tMode.listIndex == -1 && tLevels.items.empty());
  popSongs();
  EXPECT_EQ(songs.items.size(), 7U) << "in a later start";
  buy(bonusSongItem);
  EXPECT_TRUE(holds(lastMessage, "You have all the Bonus Songs already.") && bank == 43);
}

TEST_F(MainWindowTest, GamesRunInsideTheClickAndComeBackToTheRightPage) {
  press("Start");
  setText(tMode, "Freestyle");
  for (const std::string& song : songNames) fake::brokenSongs.insert("\\music\\" + song);
  for (i16 game = 1; game <= 2; ++game) {
    i32 passes = 0;
    fake::windowMessages = [&] {
      ++fake::clockNow;
      EXPECT_FALSE(window->isVisible());
      if (++passes != 3000) return;
      bank = game;
      fake::pressKeys({1});
      if (game == 2) score = 100000;
      answerNext(Qt::Key_Return, QString::fromUtf8("Zoë"));
    };
    press("Play");
    EXPECT_TRUE(window->isVisible() && !fake::windowOpen && frame[game == 2].visible == True);
    loadStore();
    EXPECT_EQ(bank, game) << "credits are stored";
    EXPECT_GE(std::exchange(fake::songsOpened, {}).size(), songNames.size()) << "all are tried";
  }
  EXPECT_PRED2(holds, scores_freestyle.items[0], "100000   \tZo\xeb");
  // Of a run that fails once its game is won: mode, level, credits.
  const std::tuple<const char*, i16, i16> failing[] = {
      {"Freestyle", -1, 1}, {"B-Type", 0, 4}, {"B-Type", 1, 7}, {"B-Type", 2, 13}};
  fake::windowMessages = [] {
    score = 200000, bank = 1, levelWon = True;
    throw std::length_error("no room");
  };
  for (const auto& [mode, grade, credits] : failing) {
    setText(tMode, mode);
    tLevels.listIndex = grade;
    EXPECT_THROW(run(main_BtnRun.click), std::length_error);
    for (i32 time = 0; time < 2; ++time) storeAtOnce();
    loadStore();
    EXPECT_EQ(bank, credits) << mode;
  }
  loadScores();
  EXPECT_PRED2(holds, scores_freestyle.items[0], "200000   \t");
}

TEST_F(MainWindowTest, ThemeIsStoredWhenChosenAndScoresAndVolumeAtClosingButNotByQuit) {
  window->findChild<QMenuBar*>()->setFocus();  // where Escape in a menu leaves it
  choose("&Backgrounds");
  setValue(HScroll1, 3);
  EXPECT_EQ(themePic.picture, "\\themes\\Cells\\plate_03.bmp");
  QTest::keyClick(window->focusWidget(), Qt::Key_Down);
  EXPECT_TRUE(themePic.picture == "\\themes\\Embers\\plate_01.bmp" && HScroll1.value == 1);
  loadStore();
  EXPECT_EQ(themeName, "Embers");
  themeName = "gone";
  popThemes();
  EXPECT_EQ(themeName, "Cells") << "the first, in the place of an unknown one";
  for (const bool closed : {false, true}) {
    setValue(HScroll2, 30);
    std::filesystem::remove(nativePath("\\init\\6095"));
    later([&] { closed ? static_cast<void>(window->close()) : choose("&Quit"); });
    runEvents();
    EXPECT_EQ(holds(bytesOf("\\log.txt"), "LOG CLOSED ON 01/02/03 AT 04:05:06\r\n"), closed);
    EXPECT_EQ(isRegularFile(nativePath("\\init\\6095")), closed);
    loadStore();
    EXPECT_EQ(musicVolume, closed ? 30 : 70);
  }
}

// The same by gamepad alone. Buttons are letters: "u", "d", "l", "r" for the cross.
class PadMenuTest : public MainWindowTest {
 protected:
  PadMenuTest() {
    QApplication::setActiveWindow(window);
    fConsole.hWnd = 0;
    setListIndex(tMode, -1);
    servePads(True);
  }
  void hold(char button, bool down, u32 later = 0) const {
    fake::clockNow += later;
    pad.set(static_cast<int>(std::string("AB....S....udlr").find(button)), down ? 1 : 0);
    servePads(False);
    letFormMessagesThrough();  // a menu's entry runs when the menu has gone
  }
  void tap(const std::string& buttons) const {
    for (const char button : buttons) hold(button, true), hold(button, false);
  }
  // The page in front, what a key would go to, and what is chosen.
  static std::string where() {
    std::size_t page = frame.size() - 1;
    while (frame[page].visible == False) --page;
    const QWidget* popup = QApplication::activePopupWidget();
    const QWidget& at = popup != nullptr ? *popup : *QApplication::focusWidget();
    const QString name = at.accessibleName();
    return std::to_string(page) + " " +
           (name.isEmpty() ? at.metaObject()->className() : name.toStdString()) + " " +
           textOf(tMode) + std::to_string(musicVolume);
  }
  VirtualPad pad;
};

TEST_F(PadMenuTest, CrossMovesAPressesBGoesBackAndStartOpensTheMenuBar) {
  const QString steps =
      "B 7 Start 70;A 0 Mode 70;A 0 QComboBoxPrivateContainer 70;"
      "ulr 0 QComboBoxPrivateContainer 70;B 0 Mode 70;"
      "AA 0 Mode Freestyle70;AdA 0 Mode Arcade70;du 0 Mode Arcade70;"
      "rd 0 Level Arcade70;r 0 Play Arcade70;d 0 Mode Arcade70;"
      "ldlu 0 Level Arcade70;S 0 QMenu Arcade70;rB 0 Level Arcade70;"
      "SdS 0 Level Arcade70;SrA 3 Buy a Slammer Arcade70;ddlu 3 Buy a Slammer Arcade70;"
      "B 0 Mode Arcade70;SruA 5 Volume Arcade70;rrl 5 Volume Arcade71;"
      "u 5 Songs Arcade71;B 0 Mode Arcade71";
  for (const QString& step : steps.split(';')) {
    tap(step.section(' ', 0, 0).toStdString());
    EXPECT_EQ(where(), step.section(' ', 1).toStdString()) << step.toStdString();
  }
  EXPECT_EQ(tLevels.listIndex, 0);
  fConsole.hWnd = 1;
  tap("r");
  EXPECT_EQ(where(), "0 Mode Arcade71") << "a game has the pads for itself";
}

TEST_F(PadMenuTest, HeldDirectionsRepeatThemselvesAndNothingElseDoes) {
  tap("ASruAd");
  hold('d', true);
  for (const auto& [ms, row] : {std::pair{499U, 0}, {1U, 1}, {33U, 2}}) {
    hold('d', true, ms);
    EXPECT_EQ(songs.listIndex, row) << ms;
  }
  servePads(True);
  hold('d', true, 600);
  EXPECT_EQ(songs.listIndex, 2) << "held since before the window became active";
  tap("B"), hold('A', true), hold('A', true, 600);
  const QWidget* popup = QApplication::activePopupWidget();
  EXPECT_TRUE(popup && popup->findChild<QAbstractItemView*>()->selectionModel()->hasSelection());
}

TEST_F(PadMenuTest, AnswersBoxesAndLeavesSideWindows) {
  const auto answeredBy = [this](const std::string& buttons, auto ask) {
    later([=, this] {
      auto* line = QApplication::activeModalWidget()->findChild<QLineEdit*>();
      if (line != nullptr) line->setText("Zo");
      hold('A', false, 1000), tap(buttons);
    });
    return ask();
  };
  tap("Al");
  answeredBy("A", [this] { hold('A', true); });  // asks for a mode
  const std::string taps[] = {"A", "dlA", "ddA", "lA", "B"};
  for (int i = 0; i < 5; ++i) {
    EXPECT_EQ(answeredBy(taps[i], [] { return inputBox("Name?", 20); }), i < 2 ? "Zo" : "") << i;
    EXPECT_EQ(answeredBy(taps[i], [] { return yesNoBox("Yes?"); }), flagOf(i < 3)) << i;
  }
  for (const bool byPad : {true, false}) {
    QApplication::setActiveWindow(window);  // no window manager does it here
    tap("SluA");
    if (!byPad) padInUse = false, fControls_Form_Load();
    EXPECT_EQ(holds(fControls_background.picture, "controls_pad"), byPad);
    EXPECT_TRUE(shownWindow("the control room") && (tap("B"), !shownWindow("the control room")));
  }
}

}  // namespace
}  // namespace glonks
