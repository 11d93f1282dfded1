#pragma once

#include <QDialog>
#include <QDialogButtonBox>
#include <QLineEdit>

namespace glonks {

// A text above buttons, of which Enter presses the first and Escape the last. The whole text is
// shown: it is wrapped between words, and inside a word that is too wide for the box.
class DialogBox : public QDialog {
 public:
  DialogBox(const QString& text, QDialogButtonBox::StandardButtons buttons, QWidget* parent);

  // Adds an input line, between text and buttons, of at most `longest` characters.
  QLineEdit& addLine(int longest);
};

}  // namespace glonks
