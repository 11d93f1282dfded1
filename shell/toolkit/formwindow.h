#pragma once

#include <QMainWindow>
#include <QPointer>
#include <vector>

#include "shell/toolkit/controls.h"
#include "shell/toolkit/mirror.h"

namespace glonks {

// The window of a form.
class FormWindow : public QMainWindow {
 public:
  explicit FormWindow(Form& form);

  // Shows what has changed in the form's data.
  void refresh();

  // Shows the window, in the centre of the screen or where it was put away, active and in front.
  void present();

  // Whether the window has been presented and not been closed by the player since.
  bool isOpen() const { return open_; }

  // Hides the window; present brings it back to its place.
  void putAway();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void makeMenus();
  void centreOrRestore();
  void focusFirst();

  Form& form_;
  QWidget& inside_;
  Mirrors mirrors_;
  std::vector<TabStop> stops_;
  bool open_ = false;
  QPoint position_;            // to come back to, while open
  QPointer<QWidget> inFocus_;  // when the form was put away
};

}  // namespace glonks
