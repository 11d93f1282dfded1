#pragma once

#include <string>
#include <vector>

#include "game/types.h"

// The choice of mode and level on page 0.
namespace glonks {

struct Mode {
  std::string modeTitle;        // name in the combo, by which all modules tell the modes apart
  std::string modeDescription;  // text for tModeDesc
};

inline std::vector<Mode> modes;
inline i16 modesUpper = -1;  // 3 once filled; the last slot is free

// Fills `modes`, tMode and scoreModes, and selects the first item of scoreModes.
void popModes();

// A mode was picked: shows its description and fills tLevels. For Arcade it reads the open levels
// from "\init\6537", which is made anew if it is damaged.
void tMode_Click();

}  // namespace glonks
