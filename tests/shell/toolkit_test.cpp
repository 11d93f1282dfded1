#include "shell/toolkit/toolkit.h"

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QComboBox>
#include <QListWidget>
#include <QProcess>
#include <QScrollBar>
#include <csignal>
#include <cstdio>

#include "shell/menucontrols.h"
#include "shell/menulayout.h"
#include "shell/toolkit/endsignals.h"
#include "shell/toolkit/folderlock.h"
#include "shell/toolkit/style.h"
#include "tests/shell/later.h"
#include "tests/tempfolder.h"

// The controls of a form, driven through their real widgets by keys and mouse.

namespace glonks {
namespace {

using Runs = std::vector<std::string>;

// Sheets live on, as the forms of a program do.
struct Sheet* sheet = nullptr;
struct Sheet {
  const Runs items = {"one", "two", "three"};
  HScrollBar bar{{150, 0, 3000, 900, 0}, 0, 100, 0, 1, 1, barChanged, [] { note("scroll"); }};
  ListBox list{{{150, 990, 3000, 900, 1}, items, {0, 0, 0}, -1, False, chosen}};
  ComboBox combo{{{150, 1980, 3000, 900, 2}, items, {0, 0, 0}, -1, False, chosen}};
  Image spot{{150, 2970, 3000, 900}, "", "Play", [] { note("spot"); }};
  Form form{"", 6000, 6000, nullptr, {}, {&spot, &combo, &list, &bar}};

  Runs runs;  // what the handlers reported
  static void note(const std::string& what) { sheet->runs.push_back(what); }
  static void barChanged() { note("change " + std::to_string(sheet->bar.value)); }
  static void chosen() { note(textOf(sheet->combo) + " and " + textOf(sheet->list)); }
};

struct Toolkit : testing::Test {
  Toolkit() { QApplication::setActiveWindow(window); }
  ~Toolkit() override { hideForm(sheet->form); }
  QWidget* window = (showForm((sheet = new Sheet)->form), shownWindow());
  QComboBox* combo = window->findChild<QComboBox*>();
  QListWidget* list = window->findChild<QListWidget*>();
  // Not one inside a list.
  QScrollBar* bar = combo->parent()->findChild<QScrollBar*>({}, Qt::FindDirectChildrenOnly);
  QAbstractButton* spot = hotSpot(window, "Play");
};

TEST_F(Toolkit, ShowsTheDataAndReportsWhatIsDoneByMouseAndKeys) {
  EXPECT_EQ(combo->geometry(), QRect(10, 132, 200, 60));
  for (QWidget* stop : std::initializer_list<QWidget*>{bar, list, combo, spot, bar}) {
    EXPECT_EQ(QApplication::focusWidget(), stop);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  QTest::keyClick(combo, Qt::Key_Down);
  QTest::keyClick(list, Qt::Key_Down);
  const QPoint third = list->visualItemRect(list->item(2)).center();
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, third);
  QTest::keyClick(spot, Qt::Key_Space);
  QTest::keyClick(spot, Qt::Key_Return);
  QTest::mousePress(bar, Qt::LeftButton, {}, QPoint(4, bar->height() / 2));
  QTest::mouseMove(bar, bar->rect().bottomRight());
  QTest::mouseRelease(bar, Qt::LeftButton, {}, bar->rect().bottomRight());
  QTest::keyClick(bar, Qt::Key_Left);
  const auto row = [this] { return list->viewport()->grab(list->visualItemRect(list->item(1))); };
  const QImage filled = row().toImage();
  sheet->list.items[1].clear();
  sheet->list.listIndex = 0;
  sheet->combo.enabled = False;
  sheet->bar.value = 30;
  letFormMessagesThrough();
  EXPECT_NE(row().toImage(), filled) << "rows show their text";
  EXPECT_TRUE(list->item(0)->isSelected() && !combo->isEnabled() && bar->value() == 30);
  EXPECT_EQ(sheet->runs, (Runs{"one and ", "one and one", "one and three", "spot", "spot", "scroll",
                               "change 100", "change 99"}));
}

TEST(Lists, AreSortedAsPeopleSort) {
  const Runs order = {"eagle", "\xc9lan", "emu", "level 2", "Level 10", "Zebra"};
  ListBox list;
  list.sorted = True;
  for (const int item : {4, 5, 3, 2, 1, 0}) addItem(list, order[item]);
  EXPECT_EQ(list.items, order);
}

TEST_F(Toolkit, WhatHandlersRaiseComesOutOfTheLoopTheyRanIn) {
  sheet->spot.click = [] { throw "raised"; };
  for (const auto loop : {runEvents, letFormMessagesThrough}) {
    later([this] { QTest::keyClick(spot, Qt::Key_Space); });
    EXPECT_THROW(loop(), const char*);
  }
}

TEST_F(Toolkit, FormsKeepTheirPlaceWhenHiddenAndCloseByEscapeUnlessTheyHaveAnUnload) {
  window->move(40, 50);
  hideForm(sheet->form);
  showForm(sheet->form);
  EXPECT_EQ(window->pos(), QPoint(40, 50));
  QTest::keyClick(list, Qt::Key_Escape);
  EXPECT_FALSE(window->isVisible());
  showForm(sheet->form);
  sheet->form.unload = [] { Sheet::note("unload"); };
  window->close();
  QTest::keyClick(list, Qt::Key_Escape);
  EXPECT_TRUE(window->isVisible() && sheet->runs == Runs{"unload"});
}

// Long texts, and the keys that answer. Every answer also checks that the text is shown whole.
TEST_F(Toolkit, DialogsAreAnsweredByKeysWithOrWithoutAForm) {
  const QString name = QString::fromUtf8("Zoë ☃!too long");
  for (const int factor : {2, 1}) {
    applyStyle(*qApp, factor);
    std::string text = "<b>caf\xe9";
    for (const std::string more : {"", " damaged.  It is kept as a file", "_unbroken_"}) {
      for (int i = 0; i < 20; ++i) text += more;
      answered(Qt::Key_Escape, [&] { messageBox(text); });
      EXPECT_EQ(lastMessage.substr(0, 8), "<b>café");
      EXPECT_EQ(answered(Qt::Key_Return, [&] { return yesNoBox(text); }), True);
      EXPECT_EQ(answered(Qt::Key_Escape, [&] { return yesNoBox(text); }), False);
      const auto askName = [&] { return inputBox(text, 6); };
      EXPECT_EQ(answered(Qt::Key_Return, askName, name), "Zo\xeb ?!");
      EXPECT_EQ(answered(Qt::Key_Escape, askName, name), "");
    }
    hideForm(sheet->form);
  }
  later([] {  // as of the Escape that has ended a game and is still held
    QWidget* box = QApplication::activeModalWidget();
    for (const bool marked : {false, true, true, false}) {
      QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Escape, {}, {}, marked);
      QApplication::sendEvent(box, &repeat);
      fake::clockNow += marked ? 40 : 690;
    }
    QTest::keyClick(box, Qt::Key_Return);
  });
  EXPECT_EQ(yesNoBox("Still there?"), True);
}

TEST_F(Toolkit, SignalsThatEndTheProgramLetItStoreFirst) {
  const auto end = [] {
    std::signal(SIGHUP, SIG_IGN);  // as for a program started to outlive its terminal
    setEndHandler([] { std::fputs("stored", stderr); });
    std::raise(SIGHUP);
    letFormMessagesThrough();
    std::fputs("still here, then ", stderr);
    std::raise(SIGTERM);
    letFormMessagesThrough();
  };
  testing::GTEST_FLAG(death_test_style) = "threadsafe";
  EXPECT_EXIT(end(), testing::KilledBySignal(SIGTERM), "still here, then stored$");
}

TEST(Store, NumbersAreShownWhole) {
  layOutMenu();
  tBank.caption = tpurchase[0].caption = "32767";
  for (const int factor : {4, 3, 2, 1}) {
    applyStyle(*qApp, factor);
    showForm(*new Form{"", fMain.width, fMain.height, nullptr, {}, {&tBank, &tpurchase[0]}});
    for (const QLabel* label : shownWindow()->findChildren<QLabel*>()) {
      const int needed = label->fontMetrics().horizontalAdvance("32767") + label->indent();
      EXPECT_TRUE(needed <= label->width() && label->font().pixelSize() >= 9 * factor) << factor;
    }
    shownWindow()->close();
  }
}

TEST(Start, WithoutADisplayEndsWithASentenceAndNoArgumentGetsToQt) {
  QProcess shell;
  shell.start("sh", {"-c", "cd '" GLONKS_GAME_FOLDER "'; export QT_QPA_PLATFORM=xcb DISPLAY=:9999; "
                           "./Glonks -platform offscreen 2>&1; echo $?"});
  ASSERT_TRUE(shell.waitForFinished());
  EXPECT_EQ(shell.readAll().toStdString(),
            "Glonks can't open a window: there is no display, or it can't be reached.\n1\n");
}

// What another run, of a user without rights, gets for the folder. It ends without letting go.
FolderHold holdInOtherRun(const std::filesystem::path& folder, mode_t rights = 0777) {
  chmod(folder.c_str(), rights);
  const pid_t child = fork();
  if (child == 0) _exit(geteuid() == 0 && setuid(65534) != 0 ? -1 : int(holdFolder(folder)));
  int status = -1;
  waitpid(child, &status, 0);
  chmod(folder.c_str(), 0777);
  return static_cast<FolderHold>(WEXITSTATUS(status));
}

TEST_F(TempFolder, IsHeldByOneRunAtATimeWhateverTheLockFileHolds) {
  putBytes("\\glonks.lock", "1\nGlonks\nanother machine\n\xff");
  EXPECT_EQ(holdInOtherRun(folder), FolderHold::held);
  EXPECT_EQ(holdFolder(folder), FolderHold::held) << "a dead run's lock counts for nothing";
  EXPECT_EQ(holdInOtherRun(folder), FolderHold::otherRun);
  EXPECT_EQ(holdInOtherRun(folder, 0555), FolderHold::notWritable);
}

}  // namespace
}  // namespace glonks
