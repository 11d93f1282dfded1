#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QMainWindow>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <functional>
#include <string>

// What a player does to windows and dialogs that are shown.

namespace glonks {

// Runs `action` inside the next event loop.
inline void later(const std::function<void()>& action) { QTimer::singleShot(0, qApp, action); }

inline QWidget* shownWindow() {
  for (QWidget* top : QApplication::topLevelWidgets()) {
    if (top->isVisible() && qobject_cast<QMainWindow*>(top) != nullptr) return top;
  }
  return nullptr;
}

inline QAbstractButton* playButton(const QWidget* window) {
  for (auto* button : window->findChildren<QAbstractButton*>()) {
    if (button->accessibleName() == "Play") return button;
  }
  return nullptr;
}

inline std::string lastMessage;  // the text of the last message box that was answered

// Answers the dialog that `ask` shows by a key, after typing a text where there is a line for one.
template <typename Ask>
auto answered(Qt::Key key, Ask ask, const QString& typed = {}) {
  lastMessage.clear();
  later([=] {
    QWidget* dialog = QApplication::activeModalWidget();
    if (dialog == nullptr) return;
    if (const auto* message = qobject_cast<QMessageBox*>(dialog)) {
      EXPECT_EQ(message->textFormat(), Qt::PlainText);
      lastMessage = message->text().toStdString();
    }
    auto* line = dialog->findChild<QLineEdit*>();
    if (line != nullptr) line->insert(typed);
    QTest::keyClick(line != nullptr ? line : dialog, key);
  });
  return ask();
}

}  // namespace glonks
