#pragma once

#include <string>
#include <vector>

#include "base/types.h"

// The scrambled form of the text data files, and the temp file through which they are read and
// written.
//
// A scrambled file has the lines of its plain file, each line reversed, and each character as a
// decimal number from 0 to 255 followed by a point: a group. The number is the character's code
// plus one entry of each of two key tables, modulo 256; the position in both tables moves on by one
// at each character through the whole file.
namespace glonks {

inline constexpr i16 keyALength = 99;
inline constexpr i16 keyBLength = 100;

// The key tables, their next entries, and whether the tables have been filled; set by makeKeys.
inline i16 keyA[keyALength] = {};
inline i16 keyB[keyBLength] = {};
inline i16 keyIndexA = 0;  // 0 to 98
inline i16 keyIndexB = 0;  // 0 to 99
inline Flag keysMade = False;

// The constants of the tables: all data files are written under them, so they never change.
inline constexpr i16 keySeed = 20117;
inline constexpr i16 keyDrawArgument = 1;
inline constexpr i16 keyScale = 211;  // the largest entry

// Path of the temp file, the plain form of a scrambled file for the length of one use.
inline const std::string tempPath = "\\temp";

// The characters in reverse order.
std::string reverseText(const std::string& text);

// Back to the first entries of both tables.
void resetKeys();

// Fills both tables from the game's generator. It has to be the first use of that generator in a
// run, or the tables come out wrong. A second call does nothing.
void makeKeys(i16 seed, i16 drawArgument, i16 scale);

// Both indices on by one, each with its own wrap.
void advanceKeys();

// One character under the current table entries; the indices don't move.
char scrambleChar(char c);
char unscrambleChar(char c);

// The groups of a scrambled line, from 0 to 255, an empty one as 0. What follows the last point is
// dropped if it is digits, and a damaged group otherwise.
std::vector<i16> groupsOf(const std::string& scrambled);
inline constexpr i16 damagedGroup = -1;  // one that isn't a number from 0 to 255

// One line; the indices stay where its last character put them. unscrambleLine raises badFile for a
// damaged group, and knows no file to name.
std::string scrambleLine(const std::string& text);
std::string unscrambleLine(const std::string& scrambled);

// Whole files, on sourceChannel and targetChannel. scrambleFile puts the complete new file in the
// place of the old one, which stands until then. Both raise fileNotFound or fileAccess for a file
// that can't be opened, read or written, and badFile, naming file and line, for one that is damaged
// or too large and for a line that is too long. A plain line of 8,191 characters always fits.
void scrambleFile(const std::string& plainPath, const std::string& scrambledPath);
void unscrambleFile(const std::string& scrambledPath, const std::string& plainPath);

// Deletes the temp file on destruction, or before. One that can't be deleted is reported to nobody:
// what was read or written is whole, and the next use replaces it.
class TempFileGuard {
 public:
  TempFileGuard() = default;
  ~TempFileGuard() { remove(); }
  TempFileGuard(const TempFileGuard&) = delete;
  TempFileGuard& operator=(const TempFileGuard&) = delete;
  void remove();
};

// One reading of a scrambled file: the constructor unscrambles it into the temp file and opens that
// for input on `channel`, with errors that name the scrambled file. close() closes and deletes the
// temp file; so does the destructor, reporting nothing, when reading has failed.
class ScrambledReader {
 public:
  ScrambledReader(const std::string& scrambledPath, i16 channel);
  ~ScrambledReader();
  ScrambledReader(const ScrambledReader&) = delete;
  ScrambledReader& operator=(const ScrambledReader&) = delete;
  void close();

 private:
  TempFileGuard temp_;
  i16 channel_;
};

// One writing of a scrambled file: the constructor opens the temp file for output on
// playersChannel; close() closes it, scrambles it over `scrambledPath` and deletes it. Without
// close(), the scrambled file stays as it was.
class ScrambledWriter {
 public:
  explicit ScrambledWriter(const std::string& scrambledPath);
  ~ScrambledWriter();
  ScrambledWriter(const ScrambledWriter&) = delete;
  ScrambledWriter& operator=(const ScrambledWriter&) = delete;
  void close();

 private:
  TempFileGuard temp_;
  std::string scrambledPath_;
};

}  // namespace glonks
