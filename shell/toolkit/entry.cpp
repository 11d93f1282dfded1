#include "shell/toolkit/entry.h"

#include <exception>
#include <utility>
#include <vector>

namespace glonks {
namespace {

std::exception_ptr kept;
std::vector<std::function<void()>> loopStops;  // of the loops in use, the innermost last
int handlersRunning = 0;                       // handlers nest when they run a loop of their own
bool endRequested = false;
Handler afterHandler = nullptr;

void keepRaised() {
  kept = std::current_exception();
  if (!loopStops.empty()) loopStops.back()();
}

// Not earlier: a loop that Qt has been told to leave lets no dialog run inside it any more.
void endIfNoHandlerRuns() {
  if (endRequested && handlersRunning == 0 && !loopStops.empty()) loopStops.front()();
}

}  // namespace

void enterFromQt(const std::function<void()>& action) {
  if (kept != nullptr) return;
  ++handlersRunning;
  try {
    action();
    run(afterHandler);
  } catch (...) {
    keepRaised();
  }
  --handlersRunning;
  endIfNoHandlerRuns();
}

void setAfterHandler(Handler handler) { afterHandler = handler; }

void raiseKept() {
  if (kept != nullptr) std::rethrow_exception(std::exchange(kept, nullptr));
}

bool isAnythingKept() { return kept != nullptr; }

LoopInUse::LoopInUse(std::function<void()> stop) { loopStops.push_back(std::move(stop)); }

LoopInUse::~LoopInUse() { loopStops.pop_back(); }

void requestEnd() {
  endRequested = true;
  endIfNoHandlerRuns();
}

bool takeEndRequest() { return std::exchange(endRequested, false); }

}  // namespace glonks
