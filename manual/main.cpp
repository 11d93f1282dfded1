#include <QApplication>

#include "manual/manualwindow.h"
#include "shell/toolkit/style.h"

// The manual: a program of its own, so that it can be read beside the game.
int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setApplicationName("Glonks manual");
  glonks::applyStyle(application);
  glonks::ManualWindow window;
  window.show();
  return QApplication::exec();
}
