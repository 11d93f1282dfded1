#include "manual/manualwindow.h"
#include "shell/toolkit/application.h"

// The manual: a program of its own, so that it can be read beside the game.
int main() {
  glonks::makeApplication("The manual");
  glonks::ManualWindow window;
  window.show();
  return QApplication::exec();
}
