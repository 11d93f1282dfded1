#include "shell/toolkit/style.h"

#include <QFont>
#include <QPalette>
#include <QRegularExpression>
#include <QScreen>
#include <algorithm>
#include <cmath>

#include "base/text.h"

namespace glonks {
namespace {

constexpr int windowHeight = 345;      // logical pixels of the main window, which has to fit
constexpr double shareOfScreen = 0.8;  // of the screen's height, that a window may take
constexpr int fontHeight = 11;         // logical pixels
constexpr int largestFactor = 4;
constexpr i32 twipsPerPixel = 15;  // logical pixels

int factor = 1;

// Lengths are logical pixels.
constexpr char styleSheet[] = R"(
QMenuBar { background: palette(window); padding: 1px 3px; }
QMenuBar::item { background: transparent; padding: 3px 7px; border-radius: 3px; }
QMenuBar::item:selected, QMenuBar::item:pressed { background: #2d3342; }
QMenu { background: palette(base); border: 1px solid #3a4152; padding: 3px; }
QMenu::item { padding: 4px 24px 4px 9px; border-radius: 3px; }
QMenu::item:selected { background: palette(highlight); color: palette(highlighted-text); }
QMenu::item:disabled { background: transparent; color: #6d7382; }

QListView, QPlainTextEdit {
  background: rgba(16, 18, 24, 150);
  border: 1px solid rgba(230, 232, 238, 20);
  border-radius: 4px;
  padding: 1px;
  outline: none;
}
QListView::item { padding: 2px 4px; border-radius: 3px; }
QListView::item:hover { background: rgba(230, 232, 238, 22); }
QListView::item:selected { background: rgba(240, 169, 59, 80); color: #ffffff; }
QListView::item:selected:focus {
  background: palette(highlight);
  color: palette(highlighted-text);
}
QListView::item:selected:disabled { background: rgba(240, 169, 59, 40); color: #8b90a0; }
QListView:focus, QPlainTextEdit:focus { border-color: rgba(240, 169, 59, 170); }
QListView:disabled, QPlainTextEdit:disabled { color: #6d7382; }

QComboBox {
  combobox-popup: 0;
  background: rgba(16, 18, 24, 150);
  border: 1px solid rgba(230, 232, 238, 40);
  border-radius: 4px;
  padding: 0px 18px 0px 5px;
}
QComboBox:hover { background: rgba(45, 51, 66, 170); }
QComboBox:focus, QComboBox:on { border-color: rgba(240, 169, 59, 200); }
QComboBox:disabled { color: #6d7382; }
QComboBox::drop-down { border: none; width: 18px; }
QComboBox::down-arrow { image: none; }
QComboBox QListView {
  background: palette(base);
  border: 1px solid #3a4152;
  border-radius: 0px;
  padding: 2px;
}
QComboBox QListView::item { min-height: 14px; }
QComboBox QListView::item:selected {
  background: palette(highlight);
  color: palette(highlighted-text);
}

QScrollBar { background: rgba(230, 232, 238, 16); border: none; border-radius: 3px; margin: 0px; }
QScrollBar:vertical { width: 8px; }
QScrollBar::handle { background: rgba(230, 232, 238, 90); border-radius: 3px; margin: 1px; }
QScrollBar::handle:vertical { min-height: 18px; }
QScrollBar::handle:horizontal { min-width: 18px; }
QScrollBar::handle:hover { background: rgba(230, 232, 238, 140); }
QScrollBar::handle:pressed, QScrollBar::handle:focus { background: palette(highlight); }
QScrollBar::handle:disabled { background: rgba(230, 232, 238, 40); }
QScrollBar::add-line, QScrollBar::sub-line { width: 0px; height: 0px; }
QScrollBar::add-page, QScrollBar::sub-page { background: none; }

QDialogButtonBox { dialogbuttonbox-buttons-have-icons: 0; }
QPushButton {
  background: #2a2f3c;
  border: 1px solid #464e61;
  border-radius: 4px;
  padding: 3px 12px;
  min-width: 44px;
}
QPushButton:hover { background: #343a4a; }
QPushButton:focus { border-color: palette(highlight); }
QPushButton:pressed { background: palette(highlight); color: palette(highlighted-text); }

QToolTip {
  background: #2a2f3c;
  color: palette(text);
  border: 1px solid #464e61;
  padding: 2px;
}
)";

int factorFor(const QScreen* screen) {
  if (screen == nullptr) return 1;
  const double room = shareOfScreen * screen->availableGeometry().height();
  return std::clamp(static_cast<int>(room / windowHeight), 1, largestFactor);
}

QFont baseFont() {
  QFont font;
  font.setFamilies({"Arial", "Liberation Sans", "DejaVu Sans", "sans-serif"});
  font.setPixelSize(fontHeight * factor);
  font.setHintingPreference(QFont::PreferVerticalHinting);  // smooth on every system
  return font;
}

QPalette darkPalette() {
  const QColor text("#e6e8ee");
  const QColor faded("#6d7382");
  QPalette palette(QColor("#242934"), QColor("#14161c"));
  palette.setColor(QPalette::Base, QColor("#1b1e27"));
  palette.setColor(QPalette::AlternateBase, QColor("#20242e"));
  palette.setColor(QPalette::Highlight, QColor("#f0a93b"));
  palette.setColor(QPalette::HighlightedText, QColor("#14161c"));
  palette.setColor(QPalette::Link, QColor("#f0a93b"));
  palette.setColor(QPalette::PlaceholderText, faded);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(role, text);
    palette.setColor(QPalette::Disabled, role, faded);
  }
  return palette;
}

}  // namespace

int fittingFactor() { return factorFor(QGuiApplication::primaryScreen()); }

void applyStyle(QApplication& application, int newFactor) {
  factor = newFactor;
  QApplication::setStyle("Fusion");
  QApplication::setPalette(darkPalette());
  application.setStyleSheet(enlarged(styleSheet));
  QApplication::setFont(baseFont());  // last: each style brings the system's own fonts for some
}

int scaleFactor() { return factor; }

QString enlarged(QString sheet) {
  static const QRegularExpression length("(\\d+)px");
  QRegularExpressionMatch match = length.match(sheet);
  while (match.hasMatch()) {
    const QString larger = QString::number(match.captured(1).toInt() * factor) + "px";
    sheet.replace(match.capturedStart(), match.capturedLength(), larger);
    match = length.match(sheet, match.capturedStart() + larger.length());
  }
  return sheet;
}

int pixels(i32 twips) {
  return static_cast<int>(std::lround(static_cast<double>(twips) * factor / twipsPerPixel));
}

QString shownText(const std::string& text) { return QString::fromStdString(toUtf8(text)); }

}  // namespace glonks
