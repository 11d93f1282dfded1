#include "shell/toolkit/dialogbox.h"

#include <QKeyEvent>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

#include "base/clock.h"
#include "shell/toolkit/style.h"

namespace glonks {
namespace {

// Logical pixels.
constexpr int widestText = 380;
constexpr int narrowestText = 190;
constexpr int margin = 15;
constexpr int spacing = 13;

// ms in which an Escape may come from a key that is held since before: after the box came, longer
// than a key takes to repeat itself for the first time (usually 500 or 660); after an Escape,
// longer than from one repeat to the next. Qt doesn't mark all repeats as such.
constexpr u32 restAtFirst = 700;
constexpr u32 restBetween = 200;

constexpr QChar breakHere(0x200b);  // takes no room itself

// A label breaks lines between words only, so that a long path needs places to break.
QString breakable(const QString& text, const QFontMetrics& metrics, int width) {
  QString broken;
  qsizetype wordStart = 0;
  for (qsizetype i = 0; i <= text.size(); ++i) {
    if (i < text.size() && !text[i].isSpace()) continue;
    const QString word = text.mid(wordStart, i - wordStart);
    const bool fits = metrics.horizontalAdvance(word) <= width;
    for (const QChar letter : word) {
      broken += letter;
      if (!fits) broken += breakHere;
    }
    if (i < text.size()) broken += text[i];
    wordStart = i + 1;
  }
  return broken;
}

// As wide as its longest line, within limits, and as high as that makes it.
QLabel* makeLabel(const QString& text, const QScreen& screen) {
  auto* label = new QLabel;
  label->setTextFormat(Qt::PlainText);
  label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  label->setText(text);
  label->setAccessibleName(text);  // without places to break
  const int widest =
      std::min(widestText * scaleFactor(), screen.availableGeometry().width() * 3 / 4);
  const int width = std::clamp(label->sizeHint().width(), narrowestText * scaleFactor(), widest);
  label->setText(breakable(text, label->fontMetrics(), width));
  label->setWordWrap(true);
  label->setFixedSize(width, label->heightForWidth(width));
  return label;
}

}  // namespace

DialogBox::DialogBox(const QString& text, QDialogButtonBox::StandardButtons buttons,
                     QWidget* parent)
    : QDialog(parent) {
  setWindowFlag(Qt::MSWindowsFixedSizeDialogHint);
  auto* column = new QVBoxLayout(this);
  const int edge = margin * scaleFactor();
  column->setContentsMargins(edge, edge, edge, edge);
  column->setSpacing(spacing * scaleFactor());
  column->setSizeConstraint(QLayout::SetFixedSize);
  column->addWidget(makeLabel(text, *screen()));
  auto* row = new QDialogButtonBox(buttons);
  row->setAccessibleName("Answers");
  column->addWidget(row);
  connect(row, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(row, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

QLineEdit& DialogBox::addLine(int longest) {
  auto* line = new QLineEdit;
  line->setMaxLength(longest);
  line->setAccessibleName(findChild<QLabel*>()->accessibleName());
  static_cast<QVBoxLayout*>(layout())->insertWidget(1, line);
  line->setFocus();
  return *line;
}

void DialogBox::showEvent(QShowEvent* event) {
  escapeFrom_ = GetTickCount() + restAtFirst;
  QDialog::showEvent(event);
}

void DialogBox::keyPressEvent(QKeyEvent* event) {
  bool held = event->isAutoRepeat();
  if (event->key() == Qt::Key_Escape) {
    held |= GetTickCount() < escapeFrom_;
    escapeFrom_ = std::max(escapeFrom_, GetTickCount() + restBetween);
  }
  if (!held) QDialog::keyPressEvent(event);
}

}  // namespace glonks
