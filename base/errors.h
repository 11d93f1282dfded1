#pragma once

#include <exception>
#include <stdexcept>
#include <string>

namespace glonks {

// What kind of failure a RuntimeError reports. The numbers stand in log lines.
enum class ErrorNumber {
  badCall = 5,         // an argument that the routine can't take
  overflow = 6,        // a number outside the range of its field
  outOfMemory = 7,     // memory that can't be had
  typeMismatch = 13,   // a text where a number has to stand
  channelUse = 52,     // a channel that isn't open, or open already
  fileNotFound = 53,   // no such file
  inputPastEnd = 62,   // a file that is shorter than its reader needs
  fileAccess = 75,     // a file that can't be opened, read, written or replaced now
  badFile = 321,       // a file whose bytes aren't of the kind expected
  serviceFailed = 429  // screen, keyboard or font couldn't be had
};

// A failed call of any kind. `what()` is a sentence for a player, naming the file or call.
class RuntimeError : public std::runtime_error {
 public:
  RuntimeError(ErrorNumber number, const std::string& text)
      : std::runtime_error(text), number_(number) {}
  int number() const { return static_cast<int>(number_); }

 private:
  ErrorNumber number_;
};

// A failure of any kind as log lines tell it: its number, ", " and its text. One that isn't a
// RuntimeError is outOfMemory or badCall.
std::string numberAndText(const std::exception& error);

}  // namespace glonks
