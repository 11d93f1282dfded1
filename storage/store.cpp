#include "storage/store.h"

#include <limits>
#include <string>

#include "base/text.h"
#include "game/model/model.h"
#include "storage/files/fieldreader.h"
#include "storage/files/scrambledfiles.h"
#include "storage/files/textchannels.h"
#include "storage/playerfiles.h"

namespace glonks {
namespace {

// An oddity that is kept: the Detonators stand behind the others, not in the order of the slots.
constexpr i16 storedOrder[itemKinds] = {
    slammerItem, bombItem, bowlingBallItem, bonusSongItem, midnightBowlingItem, detonatorItem};

i16 readCount(const std::string& fieldName) {
  using Count = std::numeric_limits<i16>;
  return static_cast<i16>(readWithin(playersChannel, fieldName, 0, Count::max()));
}

// Nothing is changed before all has been read.
void readValues() {
  const i16 storedBank = readCount("bank");
  auto stock = itemStock;
  for (const i16 item : storedOrder) {
    stock[static_cast<std::size_t>(item)] = readCount("itemStock " + plainNumber(item));
  }
  const Flag flags[] = {readFlag(playersChannel, "storeFlagA"),
                        readFlag(playersChannel, "storeFlagB"),
                        readFlag(playersChannel, "storeFlagC")};
  const i32 notes =
      readWithin(playersChannel, "notesCollected", 0, std::numeric_limits<i32>::max());
  const std::string theme = storableText(readField(playersChannel, "themeName"));
  const i32 volume = readWithin(playersChannel, "musicVolume", 0, loudest);
  bank = storedBank;
  itemStock = stock;
  storeFlagA = flags[0];
  storeFlagB = flags[1];
  storeFlagC = flags[2];
  notesCollected = notes;
  themeName = theme;
  musicVolume = static_cast<i16>(volume);
}

void writeFlag(Flag flag) { writeLine(ScrambledWriter::channel, flag != False ? "1" : "0"); }

void writeNumber(i32 number) { writeLine(ScrambledWriter::channel, plainNumber(number)); }

}  // namespace

void readStore() { readPlayersFile(storeFile, readValues); }

void writeStore() {
  writePlayersFile(storeFile, [] {
    writeNumber(bank);
    for (const i16 item : storedOrder) writeNumber(itemStock[static_cast<std::size_t>(item)]);
    writeFlag(storeFlagA);
    writeFlag(storeFlagB);
    writeFlag(storeFlagC);
    writeNumber(notesCollected);
    writeLine(ScrambledWriter::channel, themeName);
    writeNumber(musicVolume);
  });
}

}  // namespace glonks
