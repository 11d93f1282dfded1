#include <QListWidget>
#include <QTextBlock>
#include <QTextBrowser>
#include <set>

#include "manual/manualwindow.h"
#include "shell/storepage.h"
#include "tests/shell/later.h"

namespace glonks {

// Every chapter has text, every picture in it can be shown, every link leads to a chapter, and the
// store's prices are those of the game.
TEST(Manual, IsWholeAndReachedByKeysAndLinks) {
  ManualWindow window;
  QListWidget& contents = window.contents();
  QTextBrowser& text = window.text();
  std::set<QString> links;
  QString all;
  for (int chapter = 0; chapter < contents.count(); ++chapter) {
    EXPECT_EQ(contents.currentRow(), chapter);
    const std::string title = contents.currentItem()->text().toStdString();
    EXPECT_GT(text.toPlainText().size(), 150) << title;
    all += text.toPlainText();
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
  for (const QString& link : links) {
    contents.setCurrentRow(-1);
    emit text.anchorClicked(QUrl(link));
    EXPECT_GE(contents.currentRow(), 0) << link.toStdString();
  }
  i32 key = 0;
  for (const StoreItem& item : storeItems) {
    QString name(item.words);
    while (!name[0].isUpper()) name = name.section(' ', 1);
    QString row = QString("\n%1\n%2\n").arg(name).arg(item.price);
    if (++key <= 4) row += QString::number(key) + "\n";
    EXPECT_TRUE(all.contains(row)) << item.words;
  }
  window.show();
  EXPECT_NE(namesIn(&window).find("Contents ()"), std::string::npos);
  QApplication::setActiveWindow(&window);
  QTest::keyClick(&text, Qt::Key_Escape);
  EXPECT_FALSE(window.isVisible());
}

}  // namespace glonks
