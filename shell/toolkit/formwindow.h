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

  // Brings everything in the window level with the data.
  void level();

  // Shows the window, in the centre of the screen or where it was put away, active and in front.
  void present();

  // Hides the window; present brings it back to its place.
  void putAway();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void makeMenus();
  void place();
  void focusFirst();

  Form& form_;
  QWidget& inside_;
  Mirrors mirrors_;
  std::vector<TabStop> stops_;
  bool placed_ = false;  // the place to come back to is place_
  QPoint place_;
  QPointer<QWidget> inFocus_;  // when the form was put away
};

}  // namespace glonks
