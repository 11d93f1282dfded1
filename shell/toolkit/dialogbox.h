#pragma once

#include <QDialog>
#include <QDialogButtonBox>
#include <QLineEdit>

namespace glonks {

// A text above buttons, of which the first is pressed by Enter and the last by Escape. The text is
// shown whole, however long it is: it is wrapped at blanks, and inside a word that is wider than
// the box.
class DialogBox : public QDialog {
 public:
  DialogBox(const QString& text, QDialogButtonBox::StandardButtons buttons, QWidget* parent);

  // Adds a line to type, between text and buttons, of at most `longest` characters.
  QLineEdit& addLine(int longest);
};

}  // namespace glonks
