#include <gtest/gtest.h>

#include <QApplication>
#include <QListWidget>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
#include <cstdlib>
#include <set>

#include "manual/manualwindow.h"

namespace glonks {
namespace {

// Every chapter has text, every picture in it can be shown, and every link leads to a chapter.
TEST(Manual, ChaptersAreWholeAndReachedByKeysAndLinks) {
  ManualWindow window;
  QListWidget& contents = window.contents();
  QTextBrowser& text = window.text();
  std::set<QString> links;
  std::set<std::string> heads;
  for (int chapter = 0; chapter < contents.count(); ++chapter) {
    EXPECT_EQ(contents.currentRow(), chapter);
    const std::string title = contents.currentItem()->text().toStdString();
    EXPECT_GT(text.toPlainText().size(), 150) << title;
    heads.insert(text.document()->firstBlock().text().toStdString());
    for (QTextBlock block = text.document()->begin(); block.isValid(); block = block.next()) {
      for (auto part = block.begin(); !part.atEnd(); ++part) {
        const QTextCharFormat format = part.fragment().charFormat();
        if (format.isAnchor()) links.insert(format.anchorHref());
        if (!format.isImageFormat()) continue;
        const QUrl name(format.toImageFormat().name());
        const QVariant picture = text.document()->resource(QTextDocument::ImageResource, name);
        EXPECT_GT(picture.value<QImage>().width(), 10) << title << name.toString().toStdString();
      }
    }
    QTest::keyClick(&contents, Qt::Key_Down);
  }
  EXPECT_EQ(heads.size(), static_cast<std::size_t>(contents.count()));
  std::set<int> reached;
  for (const QString& link : links) {
    contents.setCurrentRow(-1);
    emit text.anchorClicked(QUrl(link));
    EXPECT_GE(contents.currentRow(), 0) << link.toStdString();
    reached.insert(contents.currentRow());
  }
  EXPECT_EQ(reached.size(), links.size());
  EXPECT_GE(links.size(), 6U);
}

}  // namespace
}  // namespace glonks

int main(int argc, char** argv) {
  setenv("QT_QPA_PLATFORM", "offscreen", 1);
  testing::InitGoogleTest(&argc, argv);
  const QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
