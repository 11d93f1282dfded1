#include "storage/files/log.h"

#include "base/clock.h"
#include "base/errors.h"
#include "storage/files/textchannels.h"

namespace glonks {
namespace {

std::string stamp(const std::string& what) {
  return "LOG " + what + " ON " + dateText() + " AT " + timeText();
}

// A log that can't be written is given up: a program without one is better than no program.
template <typename Action>
void attempt(Action action) {
  try {
    action();
  } catch (const RuntimeError&) {
    abandonChannel(logFileNo);
    logEnabled = False;
  }
}

// Hands each line to the system at once: the last line of a log that breaks off shows which step
// failed.
void writeEntry(const std::string& line) {
  attempt([&] {
    writeLine(logFileNo, line);
    flushChannel(logFileNo);
  });
}

}  // namespace

void openLog() {
  if (logEnabled == False) return;
  logFileNo = freeChannel();
  attempt([] { openChannel(logFileNo, logPath, ChannelMode::output); });
  if (logEnabled != False) writeEntry(stamp("OPENED"));
}

void writeLog(std::string& text, Flag pad) {
  if (logEnabled == False) return;
  if (!text.empty()) text = timeText() + " :: " + text;
  if (pad != False) text += "   ";
  writeEntry(text);
}

void logStep(const std::string& text) {
  std::string line = text;
  writeLog(line, True);
}

void logLine(const std::string& text) {
  std::string line = text;
  writeLog(line, False);
}

void closeLog() {
  if (logEnabled == False) return;
  writeEntry(stamp("CLOSED"));
  if (logEnabled != False) attempt([] { closeChannel(logFileNo); });
  logEnabled = False;
}

}  // namespace glonks
