#include "shell/padmenu.h"

#include <QAbstractItemView>

#include "game/model/model.h"
#include "present/screen/fconsole.h"
#include "shell/fcontrols.h"
#include "shell/ftip.h"
#include "shell/menucontrols.h"
#include "shell/newgamepage.h"
#include "shell/toolkit/toolkit.h"
#include "storage/files/log.h"
#include "tests/fakes/window.h"
#include "tests/shell/later.h"
#include "tests/tempfolder.h"
#include "tests/virtualpad.h"

namespace glonks {
namespace {

class PadMenuTest : public TempFolder {
 protected:
  PadMenuTest() {
    fake::resetWindow();
    fConsole.hWnd = 0;
    clearItems(tMode);
    fTip_Form_Load();
    window = shownWindow("Glonks");
    QApplication::setActiveWindow(window);
    servePads(True);
  }
  ~PadMenuTest() override {
    hideForm(fMain);
    while (QWidget* other = shownWindow()) other->close();
    closeLog();
  }
  static int buttonOf(char letter) {
    constexpr std::pair<char, int> buttons[] = {
        {'A', SDL_CONTROLLER_BUTTON_A},         {'B', SDL_CONTROLLER_BUTTON_B},
        {'S', SDL_CONTROLLER_BUTTON_START},     {'u', SDL_CONTROLLER_BUTTON_DPAD_UP},
        {'d', SDL_CONTROLLER_BUTTON_DPAD_DOWN}, {'l', SDL_CONTROLLER_BUTTON_DPAD_LEFT},
        {'r', SDL_CONTROLLER_BUTTON_DPAD_RIGHT}};
    return std::find_if(std::begin(buttons), std::end(buttons),
                        [letter](const auto& button) { return button.first == letter; })
        ->second;
  }
  void hold(char button, bool down) const {
    pad.set(buttonOf(button), down ? 1 : 0);
    servePads(False);
    letFormMessagesThrough();  // a menu's entry runs when the menu has gone
  }
  void tap(const std::string& buttons) const {
    for (const char button : buttons) hold(button, true), hold(button, false);
  }
  // The page in front and what a key would go to.
  static std::string where() {
    std::string text;
    for (std::size_t page = 0; page < frame.size(); ++page) {
      if (frame[page].visible == True) text = std::to_string(page) + " ";
    }
    if (const QWidget* popup = QApplication::activePopupWidget()) {
      if (popup->inherits("QMenu")) return text + "menu";
      const auto* list = popup->findChild<QAbstractItemView*>();
      return text + (list->selectionModel()->hasSelection() ? "open list" : "list without a row");
    }
    const QWidget* inFocus = QApplication::focusWidget();
    if (inFocus == nullptr) return text + "nothing";
    const std::string name = inFocus->accessibleName().toStdString();
    return text + (name.empty() ? inFocus->metaObject()->className() : name);
  }
  VirtualPad pad;
  QWidget* window = nullptr;
};

TEST_F(PadMenuTest, CrossMovesAPressesBGoesBackAndStartOpensTheMenuBar) {
  const std::tuple<const char*, const char*, const char*, i32> steps[] = {
      // buttons, where they lead, the mode that is chosen, the volume
      {"B", "7 Start", "", 70},
      {"A", "0 QComboBox", "", 70},
      {"A", "0 open list", "", 70},
      {"ulr", "0 open list", "", 70},
      {"B", "0 QComboBox", "", 70},
      {"AA", "0 QComboBox", "Freestyle", 70},
      {"AdA", "0 QComboBox", "Arcade", 70},
      {"du", "0 QComboBox", "Arcade", 70},
      {"rd", "0 QListWidget", "Arcade", 70},
      {"r", "0 Play", "Arcade", 70},
      {"d", "0 QComboBox", "Arcade", 70},
      {"ldlu", "0 QListWidget", "Arcade", 70},
      {"S", "0 menu", "Arcade", 70},
      {"rB", "0 QListWidget", "Arcade", 70},
      {"SdS", "0 QListWidget", "Arcade", 70},
      {"SrA", "3 Buy a Slammer", "Arcade", 70},
      {"d", "3 Buy a Bomb", "Arcade", 70},
      {"ru", "3 Buy a Bomb", "Arcade", 70},
      {"B", "0 QComboBox", "Arcade", 70},
      {"SruA", "5 QScrollBar", "Arcade", 70},
      {"rrl", "5 QScrollBar", "Arcade", 71},
      {"u", "5 QListWidget", "Arcade", 71},
      {"B", "0 QComboBox", "Arcade", 71}};
  for (const auto& [buttons, place, mode, volume] : steps) {
    tap(buttons);
    EXPECT_TRUE(where() == place && textOf(tMode) == mode && musicVolume == volume)
        << buttons << " leads to " << where() << ", " << textOf(tMode) << ", " << musicVolume;
  }
  EXPECT_EQ(tLevels.listIndex, 0);
}

TEST_F(PadMenuTest, HeldDirectionsRepeatThemselvesAndNothingElseDoes) {
  const auto wait = [](u32 ms, Flag first = False) {
    fake::clockNow += ms;
    servePads(first);
    letFormMessagesThrough();
  };
  tap("ASruAd");
  hold('d', true);
  for (const auto& [ms, row] : {std::pair{499U, 0}, {1U, 1}, {33U, 2}, {33U, 3}}) {
    wait(ms);
    EXPECT_EQ(songs.listIndex, row) << ms;
  }
  hold('d', false);
  hold('u', true);
  wait(600, True);
  wait(600);
  EXPECT_EQ(songs.listIndex, 2) << "held since before the window became active";
  hold('u', false);
  tap("B");
  hold('A', true);
  wait(600);
  EXPECT_EQ(where(), "0 open list") << "a second press would choose";
  hold('A', false);
  tap("B");
  fConsole.hWnd = 1;
  tap("r");
  fConsole.hWnd = 0;
  EXPECT_EQ(where(), "0 QComboBox") << "a game has the pads for itself";
}

TEST_F(PadMenuTest, AnswersBoxesAndLeavesSideWindows) {
  const auto answeredBy = [this](const std::string& buttons, auto ask) {
    later([=, this] {
      fake::clockNow += 1000;
      if (auto* line = QApplication::activeModalWidget()->findChild<QLineEdit*>()) {
        line->setText("Zo");
      }
      hold('A', false), tap(buttons);
    });
    return ask();
  };
  tap("Al");
  answeredBy("A", [this] { return hold('A', true); });  // asks for a mode
  QApplication::setActiveWindow(window);                // no window manager does it here
  EXPECT_EQ(where(), "0 Play");
  for (const auto& [buttons, answer] :
       {std::pair{"A", True}, {"rA", False}, {"lA", False}, {"B", False}, {"rlA", True}}) {
    EXPECT_EQ(answeredBy(buttons, [] { return yesNoBox("Yes?"); }), answer) << buttons;
  }
  for (const auto& [buttons, text] : {std::pair{"A", "Zo"}, {"dA", "Zo"}, {"ddA", ""}, {"B", ""}}) {
    EXPECT_EQ(answeredBy(buttons, [] { return inputBox("Name?", 20); }), text) << buttons;
  }
  for (const bool byPad : {true, false}) {
    QApplication::setActiveWindow(window);
    tap("Sl"), hold('u', true), hold('u', false);
    hold('A', true);
    if (!byPad) padInUse = false, fControls_Form_Load();
    EXPECT_NE(shownWindow("the control room"), nullptr);
    EXPECT_EQ(fControls_background.picture,
              byPad ? ":/forms/controls_pad.png" : ":/forms/controls.png");
    hold('A', false), tap("B");
    EXPECT_EQ(shownWindow("the control room"), nullptr);
  }
}

}  // namespace
}  // namespace glonks
