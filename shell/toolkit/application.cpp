#include "shell/toolkit/application.h"

#include <cstdio>
#include <cstdlib>
#include <string>

#include "shell/toolkit/accessible.h"
#include "shell/toolkit/style.h"

namespace glonks {
namespace {

std::string program;

// While Qt starts: it would end in an abort, after lines that mean nothing to a player.
void endIfFatal(QtMsgType type, const QMessageLogContext& /*place*/, const QString& /*text*/) {
  if (type != QtFatalMsg) return;
  std::fprintf(stderr, "%s can't open a window: there is no display, or it can't be reached.\n",
               program.c_str());
  std::_Exit(1);
}

}  // namespace

QApplication& makeApplication(const char* name) {
  program = name;
  static int argumentCount = 1;
  static char* arguments[] = {program.data(), nullptr};
  const QtMessageHandler usual = qInstallMessageHandler(endIfFatal);
  auto* application = new QApplication(argumentCount, arguments);
  qInstallMessageHandler(usual);
  QApplication::setApplicationName(name);
  applyStyle(*application);
  installAccessibleRoles();
  return *application;
}

}  // namespace glonks
