#include "shell/toolkit/endsignals.h"

#include <fcntl.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QSocketNotifier>
#include <array>
#include <csignal>

#include "base/errors.h"

namespace glonks {
namespace {

// A handler of signals may do next to nothing, so it writes the signal's number into a pipe, and
// Qt's event loop finds that there.
std::array<int, 2> ends = {-1, -1};

void note(int signal) {
  const auto number = static_cast<unsigned char>(signal);
  [[maybe_unused]] const ssize_t written = write(ends[1], &number, 1);
}

void heed(int signal) {
  struct sigaction action = {};
  sigaction(signal, nullptr, &action);
  if (action.sa_handler == SIG_IGN) return;
  action = {};
  action.sa_handler = note;
  action.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
  sigaction(signal, &action, nullptr);
}

void endBySignal(Handler handler) {
  unsigned char number = 0;
  if (read(ends[0], &number, 1) != 1) return;
  run(handler);
  std::raise(number);  // once more, and by now to its usual effect
}

}  // namespace

void setEndHandler(Handler handler) {
  if (pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
    throw RuntimeError(ErrorNumber::serviceFailed, "Signals of the system can't be received.");
  }
  auto* notifier = new QSocketNotifier(ends[0], QSocketNotifier::Read, qApp);
  QObject::connect(notifier, &QSocketNotifier::activated, [handler] { endBySignal(handler); });
  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) heed(signal);
}

}  // namespace glonks
