#pragma once

#include <QDialog>
#include <QDialogButtonBox>
#include <QLineEdit>

#include "base/types.h"

namespace glonks {

// A text above buttons, of which Enter presses the first and Escape the last. The whole text is
// shown: it is wrapped between words, and inside a word that is too wide for the box. Keys that
// were held when the box came answer nothing, like the Escape that has ended a game.
class DialogBox : public QDialog {
 public:
  DialogBox(const QString& text, QDialogButtonBox::StandardButtons buttons, QWidget* parent);

  // Adds an input line, between text and buttons, of at most `longest` characters.
  QLineEdit& addLine(int longest);

 protected:
  void showEvent(QShowEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  u32 escapeFrom_ = 0;  // GetTickCount from which on Escape counts
};

}  // namespace glonks
