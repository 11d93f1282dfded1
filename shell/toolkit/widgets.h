#pragma once

#include <QAbstractButton>
#include <QComboBox>
#include <QListWidget>
#include <QPixmap>
#include <functional>

// Widgets that the controls need and that Qt doesn't have in this form.
namespace glonks {

// A page or another group of controls.
class PageView : public QWidget {
 public:
  using QWidget::QWidget;
};

// A picture, stretched over the widget. If it takes clicks it is a button, which shows a frame
// while the focus or the mouse is on it.
class PictureView : public QAbstractButton {
 public:
  explicit PictureView(QWidget* parent);

  // Whether it takes clicks, and whether the Tab key stops at it even if it doesn't.
  void setUse(bool clickable, bool tabStop);
  bool isClickable() const { return !testAttribute(Qt::WA_TransparentForMouseEvents); }

  // Shows the picture of this file, or nothing if it can't be loaded, isn't a regular file or has
  // no name.
  void setFile(const QString& file);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void paintFrame(QPainter& painter) const;
  void fitTo(const QSize& size);

  QString file_;
  QPixmap fitted_;  // the picture in the size of the widget
  QSize fittedTo_;  // the size in screen pixels that fitted_ was made for
};

// A drop-down list with an arrow that suits the style.
class DropDown : public QComboBox {
 public:
  using QComboBox::QComboBox;

  int selectedRow() const { return currentIndex(); }  // -1: none
  void selectRow(int row) { setCurrentIndex(row); }

 protected:
  void paintEvent(QPaintEvent* event) override;
};

// A list with at most one row selected. A tab in a row begins a second column. Rows move closer
// together if that shows all of them without scrolling. `chosen` runs when the player has chosen a
// row, even one that was selected already, but not when the program selects one.
class ChoiceList : public QListWidget {
 public:
  explicit ChoiceList(QWidget* parent);

  int selectedRow() const;  // -1: none
  void selectRow(int row);

  std::function<void(int row)> chosen;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  bool pressed_ = false;  // on a row, by the mouse
};

}  // namespace glonks
