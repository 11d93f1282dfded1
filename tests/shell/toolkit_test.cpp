#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QLockFile>
#include <QMainWindow>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <clocale>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <vector>

#include "shell/toolkit/toolkit.h"
#include "storage/paths.h"
#include "tests/shell/later.h"

// The controls of a form, driven through their real widgets by keys and mouse.

namespace glonks {
namespace {

std::vector<std::string> runs;  // what the handlers have told

// Two pages, the second hidden, over a background picture; a fresh form for each test.
struct Sheet {
  Image background;
  Frame front, back;
  ComboBox combo;
  ListBox list;
  Label label;
  TextBox text;
  HScrollBar bar;
  Image spot;
  ListBox backList;
  Form form;
};
Sheet* sheet = nullptr;

void at(Control& control, i32 left, i32 top, i32 width, i32 height) {
  control.left = left;
  control.top = top;
  control.width = width;
  control.height = height;
}

// Sheets live on, as the forms of a program do.
Sheet* makeSheet() {
  auto* made = new Sheet;
  at(made->background, 0, 0, 4500, 4500);
  for (Frame* page : {&made->front, &made->back}) at(*page, 0, 0, 4500, 4500);
  at(made->combo, 150, 150, 3000, 315);
  at(made->list, 150, 600, 3000, 1500);
  at(made->label, 150, 2250, 3000, 450);
  at(made->text, 150, 2850, 3000, 600);
  at(made->bar, 150, 3600, 3000, 255);
  at(made->spot, 3300, 150, 900, 450);
  at(made->backList, 150, 600, 3000, 1500);
  made->bar.tabIndex = 0;
  made->list.tabIndex = 1;
  made->combo.tabIndex = 2;
  made->backList.tabIndex = 3;
  for (const char* item : {"one", "two", "three"}) {
    addItem(made->combo, item);
    addItem(made->list, item);
    addItem(made->backList, item);
  }
  made->combo.click = [] { runs.push_back("combo " + textOf(sheet->combo)); };
  made->list.click = [] { runs.push_back("list " + textOf(sheet->list)); };
  made->bar.scroll = [] { runs.push_back("scroll"); };
  made->bar.change = [] { runs.push_back("change " + std::to_string(sheet->bar.value)); };
  made->spot.click = [] { runs.push_back("spot"); };
  made->spot.hint = "Play";
  made->back.visible = False;
  made->back.enabled = False;
  made->back.controls = {&made->backList};
  made->front.controls = {&made->spot,  &made->combo, &made->list,
                          &made->label, &made->text,  &made->bar};
  made->form.controls = {&made->background, &made->front, &made->back};
  made->form.menus = {{"Game", {{"New", [] { runs.push_back("new"); }}}}};
  made->form.caption = "Sheet " + std::to_string(reinterpret_cast<std::uintptr_t>(made));
  made->form.width = 4500;
  made->form.height = 4500;
  return made;
}

class Toolkit : public testing::Test {
 protected:
  void SetUp() override {
    sheet = makeSheet();
    runs.clear();
    showForm(sheet->form);
    for (QWidget* top : QApplication::topLevelWidgets()) {
      if (top->windowTitle().toStdString() == sheet->form.caption) window = top;
    }
    ASSERT_NE(window, nullptr);
    QApplication::setActiveWindow(window);
    letMessagesThrough();
  }
  void TearDown() override { hideForm(sheet->form); }

  template <typename View>
  View* find(int index = 0) {
    return window->findChildren<View*>().at(index);
  }
  QAbstractButton* spotButton() {
    for (auto* button : window->findChildren<QAbstractButton*>()) {
      if (button->accessibleName() == "Play") return button;
    }
    return nullptr;
  }
  QScrollBar* scrollBar() {  // not one inside a list
    return find<QComboBox>()->parent()->findChild<QScrollBar*>({}, Qt::FindDirectChildrenOnly);
  }
  // The player's click on row `row`.
  void clickRow(int row) {
    auto* list = find<QListWidget>();
    const QPoint point = list->visualItemRect(list->item(row)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, point);
  }

  QWidget* window = nullptr;
};

TEST_F(Toolkit, showsWhatTheDataHoldAndFollowsTheirChanges) {
  EXPECT_EQ(find<QComboBox>()->currentIndex(), -1);
  auto* centre = static_cast<QMainWindow*>(window)->centralWidget();
  const int factor = centre->width() / 300;
  EXPECT_EQ(centre->size(), QSize(300, 300) * factor);
  EXPECT_EQ(find<QComboBox>()->geometry(),
            QRect(10 * factor, 10 * factor, 200 * factor, 21 * factor));

  sheet->label.caption = "caf\xe9 <b>&c";
  sheet->text.text = "one\r\ntwo";
  clearItems(sheet->list);
  addItem(sheet->list, "alone");
  sheet->list.listIndex = 0;
  sheet->combo.enabled = False;
  sheet->bar.max = 500;
  sheet->bar.value = 300;
  at(sheet->label, 300, 2250, 1500, 300);
  letMessagesThrough();
  EXPECT_EQ(find<QLabel>()->text(), QString::fromUtf8("caf\xc3\xa9 <b>&c"));
  EXPECT_EQ(find<QLabel>()->textFormat(), Qt::PlainText);
  EXPECT_EQ(find<QLabel>()->size(), QSize(100, 20) * factor);
  EXPECT_EQ(find<QPlainTextEdit>()->toPlainText(), "one\ntwo");
  EXPECT_EQ(find<QListWidget>()->count(), 1);
  EXPECT_TRUE(find<QListWidget>()->item(0)->isSelected());
  EXPECT_FALSE(find<QComboBox>()->isEnabled());
  EXPECT_EQ(scrollBar()->value(), 300);

  sheet->list.listIndex = -1;
  letMessagesThrough();
  EXPECT_TRUE(find<QListWidget>()->selectedItems().isEmpty());
  EXPECT_TRUE(runs.empty()) << "handlers are for the player's moves";
}

TEST_F(Toolkit, handlersRunOnceForChangesByTheProgram) {
  setText(sheet->list, "two");
  setListIndex(sheet->combo, 2);
  setValue(sheet->bar, 7);
  letMessagesThrough();
  EXPECT_EQ(runs, (std::vector<std::string>{"list two", "combo three", "change 7"}));
  EXPECT_EQ(find<QComboBox>()->currentText(), "three");
}

TEST_F(Toolkit, comboRunsForEachPickOfTheSameItemToo) {
  auto* combo = find<QComboBox>();
  for (int pick = 0; pick < 2; ++pick) {
    combo->showPopup();
    combo->view()->setCurrentIndex(combo->model()->index(1, 0));
    QTest::keyClick(combo->view(), Qt::Key_Return);
  }
  EXPECT_EQ(runs, (std::vector<std::string>{"combo two", "combo two"}));
  QTest::keyClick(combo, Qt::Key_Down);
  EXPECT_EQ(sheet->combo.listIndex, 2);
}

TEST_F(Toolkit, listRunsForMouseAndKeyboard) {
  find<QListWidget>()->setFocus();
  EXPECT_TRUE(runs.empty()) << "the focus alone chooses nothing";
  QTest::keyClick(find<QListWidget>(), Qt::Key_Down);
  QTest::keyClick(find<QListWidget>(), Qt::Key_Down);
  clickRow(2);
  clickRow(2);
  QTest::keyClick(find<QListWidget>(), Qt::Key_Down);
  EXPECT_EQ(runs, (std::vector<std::string>{"list one", "list two", "list three", "list three"}));
  EXPECT_EQ(sheet->list.listIndex, 2);

  sheet->list.click = [] { clearItems(sheet->list); };
  QTest::keyClick(find<QListWidget>(), Qt::Key_Up);
  EXPECT_EQ(find<QListWidget>()->count(), 0) << "shown as soon as the handler has run";
}

TEST_F(Toolkit, hotSpotIsPressedByMouseAndKeys) {
  const QPoint point = spotButton()->mapTo(window, spotButton()->rect().center());
  QTest::mouseClick(window->childAt(point), Qt::LeftButton);
  QTest::keyClick(spotButton(), Qt::Key_Space);
  QTest::keyClick(spotButton(), Qt::Key_Return);
  QTest::keyClick(spotButton(), Qt::Key_Enter);
  EXPECT_EQ(runs.size(), 4U);
  EXPECT_EQ(spotButton()->toolTip(), "Play");

  sheet->spot.enabled = False;
  letMessagesThrough();
  QTest::mouseClick(spotButton(), Qt::LeftButton);
  EXPECT_EQ(runs.size(), 4U);
}

TEST_F(Toolkit, scrollBarTellsDragFromOtherMoves) {
  QScrollBar* bar = scrollBar();
  QTest::mousePress(bar, Qt::LeftButton, {}, QPoint(4, bar->height() / 2));
  QTest::mouseMove(bar, QPoint(bar->width() / 2, bar->height() / 2));
  EXPECT_EQ(runs, std::vector<std::string>{"scroll"});
  const i16 dragged = sheet->bar.value;
  EXPECT_GT(dragged, 30);
  QTest::mouseRelease(bar, Qt::LeftButton, {}, QPoint(bar->width() / 2, bar->height() / 2));
  QTest::keyClick(bar, Qt::Key_Right);
  EXPECT_EQ(runs, (std::vector<std::string>{"scroll", "change " + std::to_string(dragged),
                                            "change " + std::to_string(dragged + 1)}));
}

TEST_F(Toolkit, tabGoesByIndexThenHotSpotsAndSkipsHiddenPages) {
  std::vector<QWidget*> order;
  for (int stop = 0; stop < 4; ++stop) {
    order.push_back(QApplication::focusWidget());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  EXPECT_EQ(order[0], scrollBar());
  EXPECT_EQ(order[1], find<QListWidget>());
  EXPECT_EQ(order[2], find<QComboBox>());
  EXPECT_EQ(order[3], spotButton());
  EXPECT_EQ(QApplication::focusWidget(), order[0]) << "round again";
}

TEST_F(Toolkit, pagesTakeTurns) {
  auto* backList = find<QListWidget>(1);
  EXPECT_FALSE(backList->isVisible());
  EXPECT_FALSE(backList->isEnabled());
  std::swap(sheet->front.visible, sheet->back.visible);
  std::swap(sheet->front.enabled, sheet->back.enabled);
  letMessagesThrough();
  EXPECT_TRUE(backList->isVisible());
  EXPECT_TRUE(backList->isEnabled());
  EXPECT_FALSE(find<QComboBox>()->isVisible());
  EXPECT_EQ(QApplication::focusWidget(), backList);
}

TEST_F(Toolkit, whatHandlersRaiseComesOutOfTheLoopTheyRanIn) {
  sheet->spot.click = [] { throw std::runtime_error("raised"); };
  later([this] { QTest::keyClick(spotButton(), Qt::Key_Space); });
  EXPECT_THROW(runEvents(), std::runtime_error);
  later([this] { QTest::keyClick(spotButton(), Qt::Key_Space); });
  EXPECT_THROW(letMessagesThrough(), std::runtime_error);

  // A game inside a handler may catch it, and then the program's own loop goes on.
  sheet->list.click = [] {
    EXPECT_THROW(letMessagesThrough(), std::runtime_error);
    later([] {
      runs.push_back("loop goes on");
      endProgram();
    });
  };
  later([this] {
    later([this] { QTest::keyClick(spotButton(), Qt::Key_Space); });
    clickRow(0);
  });
  runEvents();
  EXPECT_EQ(runs, std::vector<std::string>{"loop goes on"});
}

TEST_F(Toolkit, closingRunsUnloadOrElseUnloads) {
  const QPoint centre = window->pos();
  window->move(40, 50);
  hideForm(sheet->form);
  EXPECT_FALSE(window->isVisible());
  showForm(sheet->form);
  EXPECT_EQ(window->pos(), QPoint(40, 50));

  window->close();
  EXPECT_FALSE(window->isVisible());
  showForm(sheet->form);
  EXPECT_EQ(window->pos(), centre);

  sheet->form.unload = [] { runs.push_back("unload"); };
  window->close();
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(runs, std::vector<std::string>{"unload"});
}

// Shows a message box and presses `key` in it; the box's text.
QString textOfBoxClosedBy(Qt::Key key) {
  QString text;
  later([&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    text = box->text();
    EXPECT_EQ(box->textFormat(), Qt::PlainText);
    QTest::keyClick(box, key);
  });
  messageBox("<b>caf\xe9");
  return text;
}

TEST_F(Toolkit, messageBoxIsClosedByEnterAndEscape) {
  sheet->label.caption = "news";
  EXPECT_EQ(textOfBoxClosedBy(Qt::Key_Return), QString::fromUtf8("<b>caf\xc3\xa9"));
  EXPECT_EQ(find<QLabel>()->text(), "news") << "dialogs stand over windows that are up to date";
  hideForm(sheet->form);
  EXPECT_FALSE(textOfBoxClosedBy(Qt::Key_Escape).isEmpty());
}

// What a run of its own, which ends without letting go, gets for the folder.
FolderHold holdInOtherRun(const std::filesystem::path& folder) {
  const pid_t child = fork();
  if (child == 0) _exit(static_cast<int>(holdFolder(folder)));
  int status = -1;
  waitpid(child, &status, 0);
  return static_cast<FolderHold>(WEXITSTATUS(status));
}

TEST(HoldFolder, oneRunAtATime) {
  QTemporaryDir temporary;
  const std::filesystem::path folder = temporary.path().toStdString();
  EXPECT_EQ(holdInOtherRun(folder), FolderHold::held);
  EXPECT_TRUE(std::filesystem::exists(folder / "glonks.lock"));
  EXPECT_EQ(holdInOtherRun(folder), FolderHold::held) << "a dead run's lock counts for nothing";

  QLockFile living(temporary.filePath("glonks.lock"));
  ASSERT_TRUE(living.tryLock(0));
  EXPECT_EQ(holdInOtherRun(folder), FolderHold::otherRun);
  EXPECT_EQ(holdFolder(folder / "nowhere"), FolderHold::notWritable);
}

}  // namespace
}  // namespace glonks
