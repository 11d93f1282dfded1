#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTimer>

#include "tests/fakes/clock.h"

// What a player does to windows and dialogs that are shown.

namespace glonks {

// Runs `action` inside the next event loop.
inline void later(const std::function<void()>& action) { QTimer::singleShot(0, qApp, action); }

// The window of a form that is shown, with this in its title if it is given.
inline QWidget* shownWindow(const QString& title = {}) {
  for (QWidget* top : QApplication::topLevelWidgets()) {
    const bool isForm = top->inherits("QMainWindow") && top->windowTitle().contains(title);
    if (isForm && top->isVisible()) return top;
  }
  return nullptr;
}

inline QAbstractButton* hotSpot(const QWidget* window, const QString& hint) {
  for (auto* button : window->findChildren<QAbstractButton*>()) {
    if (button->accessibleName() == hint) return button;
  }
  return nullptr;
}

// What a screen reader finds, a line "name (description)" each. Everything has a name and a fitting
// role, and what is drawn in a picture tells more than its name.
inline std::string namesIn(QAccessibleInterface* at, const std::string& where = "") {
  if (at->state().invisible) return "";
  const std::string name = at->text(QAccessible::Name).trimmed().toStdString();
  const std::string description = at->text(QAccessible::Description).toStdString();
  const auto is = [at](auto... roles) { return ((at->role() == roles) || ...); };
  const bool isMute = is(QAccessible::Client, QAccessible::NoRole, QAccessible::LayeredPane);
  const bool isDrawn = is(QAccessible::Graphic, QAccessible::Button) &&
                       qobject_cast<QPushButton*>(at->object()) == nullptr;
  const bool inside = name.empty() && !at->state().focusable;  // of a list, or of a window
  const std::string path = where + " / " + name;
  EXPECT_TRUE(isMute ? inside : !name.empty()) << path << " has the role " << at->role();
  EXPECT_TRUE(!isDrawn || (!description.empty() && description != name)) << path;
  std::string found = name.empty() ? "" : name + " (" + description + ")\n";
  for (int i = 0; i < at->childCount(); ++i) found += namesIn(at->child(i), path);
  return found;
}

inline std::string namesIn(QWidget* window) {
  return namesIn(QAccessible::queryAccessibleInterface(window));
}

inline std::string lastMessage;  // the text of the last dialog that was answered

// Answers the next dialog with a key, a second after it came, and after typing a text where there
// is a line for one. Gives up if none comes for as many event loops as `patience` says.
inline void answerNext(Qt::Key key, const QString& typed = {}, int patience = 20) {
  later([=] {
    QWidget* dialog = QApplication::activeModalWidget();
    if (dialog == nullptr) return patience > 0 ? answerNext(key, typed, patience - 1) : void();
    const auto* label = dialog->findChild<QLabel*>();
    // The room that the text needs lies in the label, the label in the dialog, that on the screen.
    const QRect room(0, 0, label->width(), QWIDGETSIZE_MAX);
    const QRect needed = label->fontMetrics().boundingRect(room, Qt::TextWordWrap, label->text());
    EXPECT_TRUE(label->textFormat() == Qt::PlainText && label->wordWrap());
    EXPECT_TRUE(label->rect().contains(needed) && dialog->rect().contains(label->geometry()) &&
                dialog->screen()->geometry().contains(dialog->geometry()));
    lastMessage = label->text().remove(QChar(0x200b)).toStdString();
    auto* line = dialog->findChild<QLineEdit*>();
    if (line != nullptr) line->insert(typed);
    fake::clockNow += 1000;
    QTest::keyClick(line != nullptr ? line : dialog, key);
  });
}

// The same for the dialog that `ask` shows.
template <typename Ask>
auto answered(Qt::Key key, Ask ask, const QString& typed = {}) {
  lastMessage.clear();
  answerNext(key, typed);
  return ask();
}

}  // namespace glonks
