#pragma once

#include <QApplication>

namespace glonks {

// Starts Qt and applies the style. No argument of the command line gets to Qt. Without a display it
// ends the program with a sentence on the error output and exit status 1. The application is never
// deleted: at the end of the program Qt's own static objects could be gone before it.
QApplication& makeApplication(const char* name);

}  // namespace glonks
