#include "game/loading/levels.h"

#include <vector>

#include "base/text.h"
#include "present/effects/ticker.h"
#include "storage/files/channels.h"
#include "storage/files/fieldreader.h"
#include "storage/files/scrambledfiles.h"
#include "storage/files/textchannels.h"

namespace glonks {
namespace {

i32 readSpawnInterval() {
  const char* fieldName = "spawnInterval";
  const i32 interval = readWholeI32(levelChannel, fieldName);
  if (interval < 1) badField(levelChannel, fieldName, "isn't above 0.");
  if (interval > longestInterval) {
    badField(levelChannel, fieldName, "is above " + plainNumber(longestInterval) + ".");
  }
  return interval;
}

CountedGoal readCounted(const std::string& countName, const std::string& pieceName) {
  CountedGoal goal;
  goal.left = readI16(levelChannel, countName);
  goal.name = readField(levelChannel, pieceName);
  goal.on = flagOf(goal.left != -1);
  return goal;
}

LevelTimer readTimer(const std::string& minutesName, const std::string& secondsName) {
  LevelTimer timer;
  timer.minutes = fittingI16(levelChannel, minutesName,
                             leadingNumber(readField(levelChannel, minutesName)) - 1);
  timer.seconds = readI16(levelChannel, secondsName);
  timer.on = flagOf(timer.minutes > 0 || timer.seconds > 0);
  return timer;
}

LevelHead readHead() {
  LevelHead head;
  head.title = readLine(levelChannel, "levelTitle");
  head.rewardName = readLine(levelChannel, "rewardLevelName");
  head.rewardFile = fittingI16(levelChannel, "rewardLevelFile",
                               leadingNumber(readLine(levelChannel, "rewardLevelFile")));
  head.remove = readCounted("goalPieceCount", "goalPieceName");
  // This goal alone goes by its name.
  head.remove.on = flagOf(head.remove.name != noName && head.remove.name != nothingName);
  head.score = readI32(levelChannel, "goalScore");
  head.limit = readTimer("limitMinutes", "limitSeconds");
  head.survive = readTimer("surviveMinutes", "surviveSeconds");
  head.avoid = readCounted("avoidLeft", "avoidName");
  head.land = readCounted("landLeft", "landName");
  return head;
}

struct SpawnRange {
  i16 slot = 0;
  i16 low = 0;
  i16 high = 0;
};

// Oddity 1: the two numbers of an entry are read only where a catalogue slot matches. After an
// entry for an unknown piece everything moves up by two fields.
void readSpawnEntry(std::vector<SpawnRange>& ranges) {
  const std::string name = readField(levelChannel, "name of a spawn entry");
  const i16 variety = readWholeI16(levelChannel, "variety of spawn entry \"" + name + "\"");
  for (i16 slot = 0; slot <= pieceCatalogUpper; ++slot) {
    const Piece& entry = catalogEntry(slot);
    if (entry.name != name || entry.variety != variety) continue;
    const i16 low = readWholeI16(levelChannel, "spawnLow of spawn entry \"" + name + "\"");
    const i16 high = readWholeI16(levelChannel, "spawnHigh of spawn entry \"" + name + "\"");
    ranges.push_back({slot, low, high});
  }
}

}  // namespace

std::string levelPath(i32 number) { return "\\levels\\" + plainNumber(number); }

LevelHead readLevelHead(const std::string& path) {
  ScrambledReader file(path, levelChannel);
  readSpawnInterval();
  LevelHead head = readHead();
  file.close();
  return head;
}

void setLevelFields(const LevelHead& head) {
  levelTitle = head.title;
  rewardLevelName = head.rewardName;
  rewardLevelFile = head.rewardFile;
  goalPieceCount = head.remove.left;
  goalPieceName = head.remove.name;
  goalScore = head.score;
  limitOn = head.limit.on;
  limitMinutes = head.limit.minutes;
  limitSeconds = head.limit.seconds;
  surviveOn = head.survive.on;
  surviveMinutes = head.survive.minutes;
  surviveSeconds = head.survive.seconds;
  avoidOn = head.avoid.on;
  avoidLeft = head.avoid.left;
  avoidName = head.avoid.name;
  landOn = head.land.on;
  landLeft = head.land.left;
  landName = head.land.name;
}

void loadLevel(const std::string& path, Flag isArcade) {
  ScrambledReader file(path, levelChannel);
  const i32 interval = readSpawnInterval();
  const LevelHead head = isArcade == True ? readHead() : LevelHead();
  std::vector<SpawnRange> ranges;
  while (!endOfFile(levelChannel)) readSpawnEntry(ranges);
  file.close();

  spawnInterval = interval;
  for (const SpawnRange& range : ranges) {
    catalogEntry(range.slot).spawnLow = range.low;
    catalogEntry(range.slot).spawnHigh = range.high;
  }
  if (isArcade == False) return;
  setLevelFields(head);
  levelWon = False;
  levelOver = False;
  pushMessage(levelTitle);
}

}  // namespace glonks
