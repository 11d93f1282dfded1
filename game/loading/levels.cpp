#include "game/loading/levels.h"

#include "base/text.h"
#include "game/model/model.h"
#include "present/effects/ticker.h"
#include "storage/files/channels.h"
#include "storage/files/fieldreader.h"
#include "storage/files/scrambledfiles.h"
#include "storage/files/textchannels.h"

namespace glonks {
namespace {

// Minutes are held one less than the file says: the countdown begins at 59 seconds.
i16 readMinutes(const std::string& fieldName) {
  return fittingI16(levelChannel, fieldName, leadingNumber(readField(levelChannel, fieldName)) - 1);
}

i32 readSpawnInterval() {
  const char* fieldName = "spawnInterval";
  const i32 interval = readWholeI32(levelChannel, fieldName);
  if (interval < 1) badField(levelChannel, fieldName, "isn't above 0.");
  if (interval > longestInterval) {
    badField(levelChannel, fieldName, "is above " + plainNumber(longestInterval) + ".");
  }
  return interval;
}

void readGoals() {
  limitOn = False;
  surviveOn = False;
  avoidOn = False;
  landOn = False;
  levelWon = False;
  levelOver = False;
  levelTitle = readLine(levelChannel, "levelTitle");
  rewardLevelName = readLine(levelChannel, "rewardLevelName");
  pushMessage(levelTitle);
  rewardLevelFile = fittingI16(levelChannel, "rewardLevelFile",
                               leadingNumber(readLine(levelChannel, "rewardLevelFile")));
  goalPieceCount = readI16(levelChannel, "goalPieceCount");
  goalPieceName = readField(levelChannel, "goalPieceName");
  goalScore = readI32(levelChannel, "goalScore");
  limitMinutes = readMinutes("limitMinutes");
  limitSeconds = readI16(levelChannel, "limitSeconds");
  limitOn = flagOf(limitMinutes > 0 || limitSeconds > 0);
  surviveMinutes = readMinutes("surviveMinutes");
  surviveSeconds = readI16(levelChannel, "surviveSeconds");
  surviveOn = flagOf(surviveMinutes > 0 || surviveSeconds > 0);
  avoidLeft = readI16(levelChannel, "avoidLeft");
  avoidName = readField(levelChannel, "avoidName");
  avoidOn = flagOf(avoidLeft != -1);
  landLeft = readI16(levelChannel, "landLeft");
  landName = readField(levelChannel, "landName");
  landOn = flagOf(landLeft != -1);
}

// Oddity 1: the two numbers of an entry are read only where a catalogue slot matches. After an
// entry for an unknown piece everything moves up by two fields.
void readSpawnEntry() {
  const std::string name = readField(levelChannel, "name of a spawn entry");
  const i16 variety = readWholeI16(levelChannel, "variety of spawn entry \"" + name + "\"");
  for (i16 slot = 0; slot <= pieceCatalogUpper; ++slot) {
    Piece& entry = catalogEntry(slot);
    if (entry.name != name || entry.variety != variety) continue;
    entry.spawnLow = readWholeI16(levelChannel, "spawnLow of spawn entry \"" + name + "\"");
    entry.spawnHigh = readWholeI16(levelChannel, "spawnHigh of spawn entry \"" + name + "\"");
  }
}

}  // namespace

void loadLevel(const std::string& path, Flag isArcade) {
  ScrambledReader file(path, levelChannel);
  spawnInterval = readSpawnInterval();
  if (isArcade == True) readGoals();
  while (!endOfFile(levelChannel)) readSpawnEntry();
  file.close();
}

}  // namespace glonks
