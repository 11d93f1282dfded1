#include "manual/manualwindow.h"

#include <QFile>
#include <QHBoxLayout>
#include <QIcon>
#include <QImage>
#include <QListWidget>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QTextBrowser>
#include <algorithm>

#include "shell/toolkit/style.h"

namespace glonks {
namespace {

// Logical pixels, as all lengths here and in the chapters.
constexpr int windowWidth = 760;
constexpr int windowHeight = 560;
constexpr int contentsWidth = 185;
constexpr int textHeight = 13;

struct Chapter {
  const char* title;
  const char* file;  // of :/manual/text/, without ".html"; links between chapters use it too
};
constexpr Chapter chapters[] = {
    {"Welcome", "welcome"},
    {"Starting a game", "start"},
    {"The field", "field"},
    {"Keys", "keys"},
    {"The pieces", "pieces"},
    {"Slamming", "slamming"},
    {"Bombs and fruit", "bombs"},
    {"Scoring", "scoring"},
    {"Freestyle", "freestyle"},
    {"Arcade", "arcade"},
    {"B-Type", "btype"},
    {"Midnight Bowling", "bowling"},
    {"The store", "store"},
    {"The menu's pages", "pages"},
    {"The windows of Help", "windows"},
    {"Tips", "tips"},
    {"When something is wrong", "trouble"},
};

constexpr char textStyle[] = R"(
h1 { color: #f0a93b; font-size: 20px; }
h2 { color: #cfe0ff; font-size: 15px; margin-top: 14px; }
a { color: #8fb4ff; }
td, th { padding: 3px 8px 3px 0px; vertical-align: middle; }
th { color: #f0a93b; text-align: left; }
)";

QString chapterText(const Chapter& chapter) {
  QFile file(QString(":/manual/text/") + chapter.file + ".html");
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// The text of a chapter. A picture's name ends in "?" and the width to show it at.
class ChapterView : public QTextBrowser {
 protected:
  QVariant loadResource(int type, const QUrl& name) override {
    if (type != QTextDocument::ImageResource) return QTextBrowser::loadResource(type, name);
    // Scaled in full colour: a picture with a palette would be dithered back to it.
    const QImage picture = QImage(":/manual/" + name.path()).convertToFormat(QImage::Format_ARGB32);
    return picture.scaledToWidth(name.query().toInt() * scaleFactor(), Qt::SmoothTransformation);
  }
};

}  // namespace

ManualWindow::ManualWindow() : contents_(*new QListWidget), text_(*new ChapterView) {
  setWindowTitle("Glonks - the manual");
  setWindowIcon(QIcon(":/manual/pictures/glonk_01.png"));
  for (const Chapter& chapter : chapters) contents_.addItem(chapter.title);
  contents_.setAccessibleName("Contents");
  contents_.verticalScrollBar()->setAccessibleName("Scroll");
  text_.verticalScrollBar()->setAccessibleName("Scroll");
  contents_.setFixedWidth(contentsWidth * scaleFactor());
  QFont font = text_.font();
  font.setPixelSize(textHeight * scaleFactor());
  text_.setFont(font);
  contents_.setFont(font);
  contents_.setSpacing(scaleFactor());
  text_.document()->setDefaultStyleSheet(enlarged(textStyle));
  text_.document()->setDocumentMargin(12 * scaleFactor());
  text_.setOpenLinks(false);

  auto* inside = new QWidget(this);
  auto* row = new QHBoxLayout(inside);
  row->addWidget(&contents_);
  row->addWidget(&text_, 1);
  setCentralWidget(inside);
  const QRect room = screen()->availableGeometry();
  resize((QSize(windowWidth, windowHeight) * scaleFactor()).boundedTo(room.size() * 0.9));
  move(room.center() - rect().center());

  connect(&contents_, &QListWidget::currentRowChanged, this, &ManualWindow::showChapter);
  connect(&text_, &QTextBrowser::anchorClicked, this, &ManualWindow::follow);
  makeShortcuts();
  contents_.setCurrentRow(0);
  contents_.setFocus();
}

void ManualWindow::makeShortcuts() {
  const auto turn = [this](int step) {
    const int chapter = contents_.currentRow() + step;
    contents_.setCurrentRow(std::clamp(chapter, 0, contents_.count() - 1));
  };
  const auto on = [this](const QKeySequence& keys, const auto& action) {
    connect(new QShortcut(keys, this), &QShortcut::activated, this, action);
  };
  on(Qt::CTRL | Qt::Key_PageUp, [turn] { turn(-1); });
  on(Qt::CTRL | Qt::Key_PageDown, [turn] { turn(1); });
  on(Qt::Key_Escape, [this] { close(); });
}

void ManualWindow::showChapter(int chapter) {
  if (chapter < 0) return;
  text_.setAccessibleName(chapters[chapter].title);
  text_.setHtml(chapterText(chapters[chapter]));
  text_.verticalScrollBar()->setValue(0);
}

void ManualWindow::follow(const QUrl& link) {
  for (int chapter = 0; chapter < contents_.count(); ++chapter) {
    if (link.path() == chapters[chapter].file) contents_.setCurrentRow(chapter);
  }
}

}  // namespace glonks
