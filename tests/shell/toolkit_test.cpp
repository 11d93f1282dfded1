#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QLockFile>
#include <QMainWindow>
#include <QMessageBox>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <stdexcept>
#include <string>
#include <vector>

#include "shell/toolkit/toolkit.h"
#include "tests/shell/later.h"

// The controls of a form, driven through their real widgets by keys and mouse.

namespace glonks {
namespace {

using Runs = std::vector<std::string>;
Runs runs;  // what the handlers have told

// Two pages, the second hidden.
struct Sheet {
  Frame front, back;
  ComboBox combo;
  ListBox list, backList;
  Label label;
  HScrollBar bar;
  Image spot;
  Form form;
};
Sheet* sheet = nullptr;

void at(Control& control, i32 left, i32 top, i32 width, i32 height, i16 tabIndex = -1) {
  control.left = left;
  control.top = top;
  control.width = width;
  control.height = height;
  control.tabIndex = tabIndex;
}

// Sheets live on, as the forms of a program do.
Sheet* makeSheet() {
  auto* made = new Sheet;
  at(made->front, 0, 0, 4500, 4500);
  at(made->back, 0, 0, 4500, 4500);
  at(made->bar, 150, 3600, 3000, 255, 0);
  at(made->list, 150, 600, 3000, 1500, 1);
  at(made->combo, 150, 150, 3000, 315, 2);
  at(made->backList, 150, 600, 3000, 1500, 3);
  at(made->label, 150, 2250, 3000, 450);
  at(made->spot, 3300, 150, 900, 450);
  for (const char* item : {"one", "two", "three"}) {
    addItem(made->combo, item);
    addItem(made->list, item);
  }
  made->combo.click = [] { runs.push_back("combo " + textOf(sheet->combo)); };
  made->list.click = [] { runs.push_back("list " + textOf(sheet->list)); };
  made->bar.scroll = [] { runs.push_back("scroll"); };
  made->bar.change = [] { runs.push_back("change " + std::to_string(sheet->bar.value)); };
  made->spot.click = [] { runs.push_back("spot"); };
  made->spot.hint = "Play";
  made->back.visible = False;
  made->back.enabled = False;
  made->back.controls.assign({&made->backList});
  made->front.controls = {&made->spot, &made->combo, &made->list, &made->label, &made->bar};
  made->form.controls = {&made->front, &made->back};
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
  void pressSpotLater() {
    later([this] { QTest::keyClick(spotButton(), Qt::Key_Space); });
  }
  QScrollBar* scrollBar() {  // not one inside a list
    return find<QComboBox>()->parent()->findChild<QScrollBar*>({}, Qt::FindDirectChildrenOnly);
  }

  QWidget* window = nullptr;
};

TEST_F(Toolkit, showsTheDataAtTheirPlacesAndFollowsTheirChanges) {
  auto* centre = static_cast<QMainWindow*>(window)->centralWidget();
  const int factor = centre->width() / 300;
  EXPECT_EQ(centre->size(), QSize(300, 300) * factor);
  EXPECT_EQ(find<QComboBox>()->geometry(),
            QRect(10 * factor, 10 * factor, 200 * factor, 21 * factor));
  EXPECT_EQ(find<QComboBox>()->currentIndex(), -1);

  sheet->label.caption = "caf\xe9 <b>&c";
  sheet->list.listIndex = 2;
  sheet->combo.enabled = False;
  sheet->bar.value = 30;
  letMessagesThrough();
  EXPECT_EQ(find<QLabel>()->text(), QString::fromUtf8("caf\xc3\xa9 <b>&c"));
  EXPECT_EQ(find<QLabel>()->textFormat(), Qt::PlainText);
  EXPECT_TRUE(find<QListWidget>()->item(2)->isSelected());
  EXPECT_FALSE(find<QComboBox>()->isEnabled());
  EXPECT_EQ(scrollBar()->value(), 30);
  EXPECT_TRUE(runs.empty()) << "handlers are for the player's moves";

  setText(sheet->list, "two");
  setListIndex(sheet->combo, 2);
  setValue(sheet->bar, 7);
  clearItems(sheet->list);
  letMessagesThrough();
  EXPECT_EQ(runs, (Runs{"list two", "combo three", "change 7"}));
  EXPECT_EQ(find<QComboBox>()->currentText(), "three");
  EXPECT_EQ(find<QListWidget>()->count(), 0);
}

TEST_F(Toolkit, comboRunsForEachPickOfTheSameItemToo) {
  auto* combo = find<QComboBox>();
  for (int pick = 0; pick < 2; ++pick) {
    combo->showPopup();
    combo->view()->setCurrentIndex(combo->model()->index(1, 0));
    QTest::keyClick(combo->view(), Qt::Key_Return);
  }
  EXPECT_EQ(runs, (Runs{"combo two", "combo two"}));
}

TEST_F(Toolkit, listIsChosenFromByMouseAndKeys) {
  auto* list = find<QListWidget>();
  list->setFocus();
  EXPECT_TRUE(runs.empty()) << "the focus alone chooses nothing";
  QTest::keyClick(list, Qt::Key_Down);
  const QPoint third = list->visualItemRect(list->item(2)).center();
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, third);
  EXPECT_EQ(runs, (Runs{"list one", "list three"}));
  EXPECT_EQ(sheet->list.listIndex, 2);
}

TEST_F(Toolkit, hotSpotIsPressedByMouseAndKeysUnlessDisabled) {
  QTest::mouseClick(spotButton(), Qt::LeftButton);
  for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
    QTest::keyClick(spotButton(), key);
  }
  EXPECT_EQ(runs.size(), 4U);
  sheet->spot.enabled = False;
  letMessagesThrough();
  QTest::mouseClick(spotButton(), Qt::LeftButton);
  EXPECT_EQ(runs.size(), 4U);
}

TEST_F(Toolkit, scrollBarTellsDragFromOtherMoves) {
  QScrollBar* bar = scrollBar();
  const QPoint middle(bar->width() / 2, bar->height() / 2);
  QTest::mousePress(bar, Qt::LeftButton, {}, QPoint(4, bar->height() / 2));
  QTest::mouseMove(bar, middle);
  EXPECT_EQ(runs, Runs{"scroll"});
  const i16 dragged = sheet->bar.value;
  EXPECT_GT(dragged, 30);
  QTest::mouseRelease(bar, Qt::LeftButton, {}, middle);
  QTest::keyClick(bar, Qt::Key_Right);
  EXPECT_EQ(runs, (Runs{"scroll", "change " + std::to_string(dragged),
                        "change " + std::to_string(dragged + 1)}));
}

TEST_F(Toolkit, tabGoesByIndexThenHotSpotsAndOnlyOnThePageShown) {
  for (QWidget* stop :
       {static_cast<QWidget*>(scrollBar()), static_cast<QWidget*>(find<QListWidget>()),
        static_cast<QWidget*>(find<QComboBox>()), static_cast<QWidget*>(spotButton())}) {
    EXPECT_EQ(QApplication::focusWidget(), stop);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  EXPECT_EQ(QApplication::focusWidget(), scrollBar()) << "round again";

  auto* backList = find<QListWidget>(1);
  EXPECT_FALSE(backList->isVisible() || backList->isEnabled());
  std::swap(sheet->front.visible, sheet->back.visible);
  std::swap(sheet->front.enabled, sheet->back.enabled);
  letMessagesThrough();
  EXPECT_TRUE(backList->isVisible() && backList->isEnabled());
  EXPECT_FALSE(find<QComboBox>()->isVisible());
  EXPECT_EQ(QApplication::focusWidget(), backList);
}

TEST_F(Toolkit, whatHandlersRaiseComesOutOfTheLoopTheyRanIn) {
  sheet->spot.click = [] { throw std::runtime_error("raised"); };
  pressSpotLater();
  EXPECT_THROW(runEvents(), std::runtime_error);
  pressSpotLater();
  EXPECT_THROW(letMessagesThrough(), std::runtime_error);
}

TEST_F(Toolkit, hiddenFormKeepsItsPlaceAndTheCloseBoxRunsUnload) {
  window->move(40, 50);
  hideForm(sheet->form);
  EXPECT_FALSE(window->isVisible());
  showForm(sheet->form);
  EXPECT_EQ(window->pos(), QPoint(40, 50));
  sheet->form.unload = [] { runs.push_back("unload"); };
  window->close();
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(runs, Runs{"unload"});
}

TEST_F(Toolkit, messageBoxIsClosedByEnterAndEscapeWithOrWithoutAForm) {
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
    QString text;
    later([&] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      text = box->text();
      EXPECT_EQ(box->textFormat(), Qt::PlainText);
      QTest::keyClick(box, key);
    });
    messageBox("<b>caf\xe9");
    EXPECT_EQ(text, QString::fromUtf8("<b>caf\xc3\xa9"));
    hideForm(sheet->form);
  }
}

// Gives `answer` to the dialog that `ask` shows, by keys.
template <typename Ask>
auto answered(Ask ask, const std::function<void(QWidget*)>& answer) {
  later([&] { answer(QApplication::activeModalWidget()); });
  return ask();
}

TEST_F(Toolkit, questionsAreAnsweredByKeys) {
  const auto press = [](Qt::Key key) { return [key](QWidget* box) { QTest::keyClick(box, key); }; };
  const auto ask = [] { return yesNoBox("Really?"); };
  EXPECT_EQ(answered(ask, press(Qt::Key_Return)), True);
  EXPECT_EQ(answered(ask, press(Qt::Key_Escape)), False);

  const auto type = [](Qt::Key end) {
    return [end](QWidget* box) {
      auto* line = box->findChild<QLineEdit*>();
      EXPECT_TRUE(line->text().isEmpty());
      line->insert(QString::fromUtf8("Zo\u00eb \u2603!too long"));
      QTest::keyClick(line, end);
    };
  };
  const auto askName = [] { return inputBox("Name?", 6); };
  EXPECT_EQ(answered(askName, type(Qt::Key_Return)), "Zo\xeb ?!");
  EXPECT_EQ(answered(askName, type(Qt::Key_Escape)), "");
}

// What a run of its own, which ends without letting go, gets for the folder.
FolderHold holdInOtherRun(const std::filesystem::path& folder) {
  const pid_t child = fork();
  if (child == 0) _exit(static_cast<int>(holdFolder(folder)));
  int status = -1;
  waitpid(child, &status, 0);
  return static_cast<FolderHold>(WEXITSTATUS(status));
}

TEST(HoldFolder, isForOneRunAtATime) {
  QTemporaryDir temporary;
  const std::filesystem::path folder = temporary.path().toStdString();
  EXPECT_EQ(holdInOtherRun(folder), FolderHold::held);
  EXPECT_EQ(holdInOtherRun(folder), FolderHold::held) << "a dead run's lock counts for nothing";
  QLockFile living(temporary.filePath("glonks.lock"));
  ASSERT_TRUE(living.tryLock(0));
  EXPECT_EQ(holdInOtherRun(folder), FolderHold::otherRun);
  EXPECT_EQ(holdFolder(folder / "nowhere"), FolderHold::notWritable);
}

}  // namespace
}  // namespace glonks
