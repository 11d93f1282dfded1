#include "shell/toolkit/toolkit.h"

#include <sys/wait.h>
#include <unistd.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QLockFile>
#include <QScrollBar>
#include <QTemporaryDir>
#include <stdexcept>
#include <vector>

#include "tests/shell/later.h"

// The controls of a form, driven through their real widgets by keys and mouse.

namespace glonks {
namespace {

using Runs = std::vector<std::string>;
Runs runs;  // what the handlers have told

// Two pages, the second hidden. Sheets live on, as the forms of a program do.
struct Sheet {
  Sheet();
  Frame front, back;
  ComboBox combo;
  ListBox list, backList;
  Label label;
  HScrollBar bar;
  Image spot;
  Form form;
};
Sheet* sheet = nullptr;

Sheet::Sheet() {
  i16 place = 0;  // one below the other
  for (Control* control :
       std::initializer_list<Control*>{&bar, &list, &combo, &backList, &label, &spot}) {
    *control = {150, 990 * place, 3000, 900, place};
    ++place;
  }
  static_cast<Control&>(front) = {0, 0, 6000, 6000};
  static_cast<Control&>(back) = {0, 0, 6000, 6000, -1, False, False};
  for (Choices* choices : std::initializer_list<Choices*>{&combo, &list}) {
    for (const char* item : {"one", "two", "three"}) addItem(*choices, item);
  }
  combo.click = [] { runs.push_back("combo " + textOf(sheet->combo)); };
  list.click = [] { runs.push_back("list " + textOf(sheet->list)); };
  bar.scroll = [] { runs.push_back("scroll"); };
  bar.change = [] { runs.push_back("change " + std::to_string(sheet->bar.value)); };
  spot.click = [] { runs.push_back("spot"); };
  spot.hint = "Play";
  back.controls.assign({&backList});
  front.controls = {&spot, &combo, &list, &label, &bar};
  form.controls = {&front, &back};
  form.width = form.height = 6000;
}

QWidget* showSheet() {
  sheet = new Sheet;
  runs.clear();
  showForm(sheet->form);
  QApplication::setActiveWindow(shownWindow());
  letFormMessagesThrough();
  return shownWindow();
}

struct Toolkit : testing::Test {
  ~Toolkit() override { hideForm(sheet->form); }
  QWidget* window = showSheet();
  QComboBox* combo = window->findChild<QComboBox*>();
  QListWidget* list = window->findChildren<QListWidget*>().at(0);
  QListWidget* backList = window->findChildren<QListWidget*>().at(1);
  QScrollBar* bar =  // not one inside a list
      combo->parent()->findChild<QScrollBar*>({}, Qt::FindDirectChildrenOnly);
  QAbstractButton* spot = hotSpot(window, "Play");
};

TEST_F(Toolkit, showsTheDataAtTheirPlacesAndFollowsTheirChanges) {
  auto* centre = static_cast<QMainWindow*>(window)->centralWidget();
  const int factor = centre->width() / 400;
  EXPECT_EQ(centre->size(), QSize(400, 400) * factor);
  EXPECT_EQ(combo->geometry(), QRect(10 * factor, 132 * factor, 200 * factor, 60 * factor));
  EXPECT_EQ(combo->currentIndex(), -1);

  sheet->label.caption = "caf\xe9 <b>&c";
  sheet->list.listIndex = 2;
  sheet->combo.enabled = False;
  sheet->bar.value = 30;
  letFormMessagesThrough();
  const auto* label = window->findChild<QLabel*>();
  EXPECT_EQ(label->text().toStdString(), "café <b>&c");
  EXPECT_EQ(label->textFormat(), Qt::PlainText);
  EXPECT_TRUE(list->item(2)->isSelected());
  EXPECT_FALSE(combo->isEnabled());
  EXPECT_EQ(bar->value(), 30);
  EXPECT_TRUE(runs.empty()) << "handlers are for the player's moves";

  setText(sheet->list, "two");
  setListIndex(sheet->combo, 2);
  setValue(sheet->bar, 7);
  clearItems(sheet->list);
  letFormMessagesThrough();
  EXPECT_EQ(runs, (Runs{"list two", "combo three", "change 7"}));
  EXPECT_EQ(combo->currentText(), "three");
  EXPECT_EQ(list->count(), 0);
}

TEST_F(Toolkit, listsAreChosenFromByMouseAndKeys) {
  for (int pick = 0; pick < 2; ++pick) {
    combo->showPopup();
    combo->view()->setCurrentIndex(combo->model()->index(1, 0));
    QTest::keyClick(combo->view(), Qt::Key_Return);
  }
  EXPECT_EQ(runs, (Runs{"combo two", "combo two"})) << "for each pick of the same item too";
  runs.clear();
  list->setFocus();
  EXPECT_TRUE(runs.empty()) << "the focus alone chooses nothing";
  QTest::keyClick(list, Qt::Key_Down);
  const QPoint third = list->visualItemRect(list->item(2)).center();
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, third);
  EXPECT_EQ(runs, (Runs{"list one", "list three"}));
}

TEST_F(Toolkit, hotSpotIsPressedByMouseAndKeysUnlessDisabled) {
  QTest::mouseClick(spot, Qt::LeftButton);
  for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
    QTest::keyClick(spot, key);
  }
  EXPECT_EQ(runs.size(), 4U);
  sheet->spot.enabled = False;
  letFormMessagesThrough();
  QTest::mouseClick(spot, Qt::LeftButton);
  EXPECT_EQ(runs.size(), 4U);
}

TEST_F(Toolkit, scrollBarTellsDragFromOtherMoves) {
  const QPoint middle(bar->width() / 2, bar->height() / 2);
  QTest::mousePress(bar, Qt::LeftButton, {}, QPoint(4, bar->height() / 2));
  QTest::mouseMove(bar, middle);
  const i16 dragged = sheet->bar.value;
  QTest::mouseRelease(bar, Qt::LeftButton, {}, middle);
  QTest::keyClick(bar, Qt::Key_Right);
  EXPECT_GT(dragged, 30);
  EXPECT_EQ(runs, (Runs{"scroll", "change " + std::to_string(dragged),
                        "change " + std::to_string(dragged + 1)}));
}

TEST_F(Toolkit, tabGoesByIndexThenHotSpotsAndOnlyOnThePageShown) {
  for (QWidget* stop : std::initializer_list<QWidget*>{bar, list, combo, spot, bar}) {
    EXPECT_EQ(QApplication::focusWidget(), stop);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  EXPECT_FALSE(backList->isVisible() || backList->isEnabled());
  std::swap(sheet->front.visible, sheet->back.visible);
  std::swap(sheet->front.enabled, sheet->back.enabled);
  letFormMessagesThrough();
  EXPECT_TRUE(backList->isVisible() && backList->isEnabled());
  EXPECT_FALSE(combo->isVisible());
  EXPECT_EQ(QApplication::focusWidget(), backList);
}

TEST_F(Toolkit, whatHandlersRaiseComesOutOfTheLoopTheyRanIn) {
  sheet->spot.click = [] { throw std::runtime_error("raised"); };
  for (const auto loop : {runEvents, letFormMessagesThrough}) {
    later([this] { QTest::keyClick(spot, Qt::Key_Space); });
    EXPECT_THROW(loop(), std::runtime_error);
  }
}

TEST_F(Toolkit, hiddenFormKeepsItsPlaceAndTheCloseBoxRunsUnload) {
  window->move(40, 50);
  hideForm(sheet->form);
  EXPECT_EQ(shownWindow(), nullptr);
  showForm(sheet->form);
  EXPECT_EQ(window->pos(), QPoint(40, 50));
  sheet->form.unload = [] { runs.push_back("unload"); };
  window->close();
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(runs, Runs{"unload"});
}

TEST_F(Toolkit, dialogsAreAnsweredByKeysWithOrWithoutAForm) {
  const auto tell = [] { messageBox("<b>caf\xe9"); };
  const auto ask = [] { return yesNoBox("Really?"); };
  const auto askName = [] { return inputBox("Name?", 6); };
  const QString name = QString::fromUtf8("Zoë ☃!too long");
  for (int round = 0; round < 2; ++round) {
    answered(Qt::Key_Return, tell);
    answered(Qt::Key_Escape, tell);
    EXPECT_EQ(lastMessage, "<b>café");
    EXPECT_EQ(answered(Qt::Key_Return, ask), True);
    EXPECT_EQ(answered(Qt::Key_Escape, ask), False);
    EXPECT_EQ(answered(Qt::Key_Return, askName, name), "Zo\xeb ?!");
    EXPECT_EQ(answered(Qt::Key_Escape, askName, name), "");
    hideForm(sheet->form);
  }
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
