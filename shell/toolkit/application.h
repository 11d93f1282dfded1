#pragma once

#include <QApplication>

namespace glonks {

// Starts Qt and applies the style. Arguments of the command line never reach Qt. Without a display,
// ends the program with a sentence on stderr and exit status 1. The application is never deleted:
// when the program ends, Qt's own static objects could be gone before it.
QApplication& makeApplication(const char* name);

}  // namespace glonks
