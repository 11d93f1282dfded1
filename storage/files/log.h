#pragma once

#include <string>

#include "base/types.h"

// A plain text trace of the steps that set up and end a game, in the player's
// folder. Each run of the program replaces the log of the run before.
namespace glonks {

inline Flag logEnabled = False;  // logging on; the routines do nothing while it is False
inline i16 logFileNo = 0;        // channel of the open log
inline constexpr char logPath[] = "\\log.txt";

// Opens the log and writes its first line. A log that can't be created turns logging off.
void openLog();

// Writes one line: the time, " :: " and the text, and three blanks after it if `pad` is set; an
// empty text gets no time. `text` holds the finished line afterwards.
void writeLog(std::string& text, Flag pad);

// The usual entry: a fixed text, padded.
void logStep(const std::string& text);

// An entry without padding.
void logLine(const std::string& text);

// Writes the last line and closes the log; errors are ignored.
void closeLog();

}  // namespace glonks
