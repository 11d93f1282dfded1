#include "storage/store.h"

#include <algorithm>
#include <limits>
#include <string>

#include "base/text.h"
#include "game/model/model.h"
#include "storage/playerfiles.h"

namespace glonks {
namespace {

// Oddity 26: the Detonators stand after the others, not in the order of the slots.
constexpr i16 storedOrder[itemKinds] = {
    slammerItem, bombItem, bowlingBallItem, bonusSongItem, midnightBowlingItem, detonatorItem};

constexpr std::size_t valueCount = 13;
constexpr std::size_t themeLine = 11;

Sifted siftValues(const Lines& lines, const Lines& first, bool strict) {
  Sifted sifted;
  sifted.lines = first;
  sifted.lines.resize(valueCount);
  for (std::size_t i = 0; i < std::min(lines.size(), valueCount); ++i) {
    if (!(i == themeLine ? isGoodText(lines[i]) : isGoodNumber(lines[i], strict))) continue;
    sifted.lines[i] = lines[i];
    ++sifted.kept;
  }
  sifted.lost = static_cast<i32>(valueCount) - sifted.kept;
  return sifted;
}

// The values of the file, taken one after the other.
class Values {
 public:
  explicit Values(const Lines& lines) : lines_(lines) {}
  std::string text() { return fieldOf(lines_[next_++], 0); }
  Flag flag() { return flagOf(leadingNumber(text()) != 0); }
  template <typename Whole>
  Whole from0(Whole high = std::numeric_limits<Whole>::max()) {
    return static_cast<Whole>(storedNumber(text(), 0, high));
  }

 private:
  const Lines& lines_;
  std::size_t next_ = 0;
};

std::string flagText(Flag flag) { return flag != False ? "1" : "0"; }

}  // namespace

void readStore() {
  const Lines lines = readPlayersFile(storeFile, siftValues);
  Values values(lines);
  bank = values.from0<i16>();
  for (const i16 item : storedOrder) stockOf(item) = values.from0<i16>();
  for (Flag* flag : {&storeFlagA, &storeFlagB, &storeFlagC}) *flag = values.flag();
  notesCollected = values.from0<i32>();
  themeName = storableText(values.text());
  musicVolume = values.from0<i16>(loudest);
}

void writeStore() {
  Lines lines = {plainNumber(bank)};
  for (const i16 item : storedOrder) lines.push_back(plainNumber(stockOf(item)));
  lines.insert(lines.end(), {flagText(storeFlagA), flagText(storeFlagB), flagText(storeFlagC),
                             plainNumber(notesCollected), themeName, plainNumber(musicVolume)});
  writePlayersFile(storeFile, lines);
}

}  // namespace glonks
