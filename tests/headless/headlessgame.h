#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "game/model/mode.h"

// Whole games without a screen, as fast as they go, for programs that play them and for replays.
namespace glonks {

inline constexpr i32 headlessFrameTime = 26;  // ms from pass to pass, each with a frame

// What is played: a mode, and a level by its number (0 for a mode without levels) or by its place
// in the mode's list. The seed decides all that chance decides.
struct HeadlessGame {
  Mode mode;
  i32 level = 0;
  i16 item = 0;
  i32 seed = 1;
};

// A key, by its DirectInput scan code, and when it was pressed: ms of game time since the start.
struct PressedKey {
  i32 time = 0;
  i32 code = 0;
};

enum class Ending { won, fullColumn, timeExpired, avoidGoal, brokenOff };

struct HeadlessResult {
  Ending ending = Ending::fullColumn;
  i32 length = 0;                // ms of game time
  std::vector<PressedKey> keys;  // all that were pressed, in order
};

// The key to press in a pass, 0 for none. Asked in each pass, with the game's time so far.
using KeyChoice = std::function<i32(i32 time)>;

// Makes the program ready, from a game's folder.
void setUpHeadless(const std::filesystem::path& gameFolder);

// The numbers of the Arcade levels, each opened by winning the one before it, from the first that
// is open to a new player. Raises as readLevelHead does.
std::vector<i32> arcadeChain();

// Plays one game. One that goes on for half an hour is broken off.
HeadlessResult playHeadless(const HeadlessGame& game, const KeyChoice& nextKey);

// Presses keys at their times. They have to live as long as the choice.
KeyChoice replayOf(const std::vector<PressedKey>& keys);

}  // namespace glonks
