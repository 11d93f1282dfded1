#pragma once

#include <filesystem>
#include <vector>

#include "tests/headless/headlessgame.h"

// A game that can be played again, as a text file: a line "seed <number>", a line "length <ms>",
// and a line for each key pressed, with its time in ms and its name, "1040 Up".
namespace glonks {

struct RecordedGame {
  i32 seed = 0;
  i32 length = 0;  // ms of game time
  std::vector<PressedKey> keys;
};

// Raises RuntimeError, naming the file and the line, for one that can't be opened or isn't such a
// text.
RecordedGame readRecordedGame(const std::filesystem::path& path);

// Raises RuntimeError for a file that can't be written.
void writeRecordedGame(const std::filesystem::path& path, const RecordedGame& game);

}  // namespace glonks
