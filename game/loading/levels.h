#pragma once

#include <string>

#include "base/types.h"
#include "game/model/model.h"

// Level files. All readers raise fileNotFound, fileAccess, inputPastEnd, typeMismatch, overflow or
// badFile, naming file and field.
namespace glonks {

// A goal of so many pieces of a name. -1 and a word for nothing: off.
struct CountedGoal {
  i16 left = -1;
  std::string name = noName;
  Flag on = False;
};

// Minutes are held one less than the file says: the countdown begins at 59 seconds.
struct LevelTimer {
  i16 minutes = -1;
  i16 seconds = -1;  // as in the file; they only switch the timer on
  Flag on = False;
};

// What an Arcade level's file says before its spawn entries.
struct LevelHead {
  std::string title;
  std::string rewardName;  // the level that winning opens, and its file number
  i16 rewardFile = 0;
  CountedGoal remove;
  i32 score = -1;  // to reach; -1: no goal
  LevelTimer limit;
  LevelTimer survive;
  CountedGoal avoid;
  CountedGoal land;
};

// The path of a level's file by its number.
std::string levelPath(i32 number);

// Reads the head of an Arcade level's file, and nothing else changes.
LevelHead readLevelHead(const std::string& path);

// Sets the level fields of model.h by a head; those of a head without goals are their reset values.
void setLevelFields(const LevelHead& head);

// Reads a level file into the level fields and the spawn ranges of pieceCatalog; needs loadPieces.
// For Arcade all of it, and the level's title goes to the ticker; otherwise `spawnInterval` and the
// ranges alone. All of that stays as it was if the file can't be read to its end.
void loadLevel(const std::string& path, Flag isArcade);

}  // namespace glonks
