#pragma once

#include <QMainWindow>

class QListWidget;
class QTextBrowser;
class QUrl;

namespace glonks {

// The manual's window: a list of contents, and beside it the chapter that is selected in it.
class ManualWindow : public QMainWindow {
 public:
  ManualWindow();

  QListWidget& contents() { return contents_; }
  QTextBrowser& text() { return text_; }

 private:
  void makeShortcuts();
  void showChapter(int chapter);
  void follow(const QUrl& link);

  QListWidget& contents_;
  QTextBrowser& text_;
};

}  // namespace glonks
