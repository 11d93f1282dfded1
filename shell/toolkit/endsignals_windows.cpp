#include <windows.h>

#include <QAbstractNativeEventFilter>
#include <QCoreApplication>
#include <cstdlib>

#include "shell/toolkit/endsignals.h"

namespace glonks {
namespace {

// At logging out and shutting down, when no program has objected to it: the system ends the process
// as soon as the message has been handled.
class EndOfSession : public QAbstractNativeEventFilter {
 public:
  explicit EndOfSession(Handler handler) : handler_(handler) {}

  bool nativeEventFilter(const QByteArray& /*kind*/, void* message, qintptr* /*result*/) override {
    const auto* told = static_cast<const MSG*>(message);
    if (told->message != WM_ENDSESSION || told->wParam == 0) return false;
    run(handler_);
    std::_Exit(0);
  }

 private:
  Handler handler_;
};

}  // namespace

// Never deleted, like the application.
void setEndHandler(Handler handler) {
  QCoreApplication::instance()->installNativeEventFilter(new EndOfSession(handler));
}

}  // namespace glonks
