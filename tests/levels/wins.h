#pragma once

#include "tests/headless/recordedgame.h"

namespace glonks {

// The won game of an Arcade level.
inline RecordedGame recordOf(i32 level) {
  const std::filesystem::path folder = GLONKS_SOURCE "/tests/levels/wins";
  return readRecordedGame(folder / (std::to_string(level) + ".txt"));
}

}  // namespace glonks
