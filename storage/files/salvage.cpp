#include "storage/files/salvage.h"

#include <algorithm>
#include <fstream>

#include "base/errors.h"
#include "base/paths.h"
#include "base/text.h"
#include "storage/files/channels.h"
#include "storage/files/scrambledfiles.h"
#include "storage/files/textchannels.h"

namespace glonks {
namespace {

using Groups = std::vector<i16>;

constexpr i32 keyPositions = keyALength * keyBLength;
constexpr i32 reach = 128;  // groups that may have been lost or added in one place

// A key position is judged by so many characters from there on. Fewer than the least ones may look
// right by chance.
constexpr i32 mostJudged = 256;
constexpr i32 leastJudged = 12;
constexpr std::size_t mostSearched = 1000;  // lines; more than a player's file ever has

char decoded(i16 group) {
  const char c = unscrambleChar(static_cast<char>(group));
  return group == damagedGroup || isControl(c) ? unreadable : c;
}

// The text of one line whose first group stands at a key position.
std::string textAt(const Groups& groups, i32 position) {
  keyIndexA = static_cast<i16>(position % keyALength);
  keyIndexB = static_cast<i16>(position % keyBLength);
  std::string text;
  for (const i16 group : groups) {
    text += decoded(group);
    advanceKeys();
  }
  return reverseText(text);
}

i32 oddIn(const std::string& text) {
  return static_cast<i32>(
      std::count_if(text.begin(), text.end(), [](char c) { return !isPrintableAscii(c); }));
}

// How many characters in the lines from `first` on are unlikely in a text, if the groups of `first`
// begin at a key position; none if there are too few to judge by.
i32 oddFrom(const std::vector<Groups>& lines, std::size_t first, i32 position) {
  i32 judged = 0;
  i32 odd = 0;
  for (std::size_t line = first; line < lines.size() && judged < mostJudged; ++line) {
    odd += oddIn(textAt(lines[line], position + judged));
    judged += static_cast<i32>(lines[line].size());
  }
  return judged < leastJudged ? 0 : odd;
}

// The key position, at or around the one expected, from which the lines read best.
i32 bestPosition(const std::vector<Groups>& lines, std::size_t first, i32 expected) {
  i32 best = expected;
  i32 least = oddFrom(lines, first, expected);
  for (i32 step = 1; step <= reach && least > 0; ++step) {
    for (const i32 position : {expected + keyPositions - step, expected + step}) {
      const i32 odd = oddFrom(lines, first, position);
      if (odd >= least) continue;
      best = position;
      least = odd;
    }
  }
  return best;
}

// A line that is too long counts as one damaged group.
std::vector<Groups> readGroups(const std::string& path) {
  std::vector<Groups> lines;
  openChannel(sourceChannel, path, ChannelMode::input);
  const ChannelGuard guard(sourceChannel);
  while (!endOfFile(sourceChannel)) {
    try {
      lines.push_back(groupsOf(readLine(sourceChannel)));
    } catch (const RuntimeError& error) {
      if (error.number() != static_cast<int>(ErrorNumber::badFile)) throw;
      lines.push_back({damagedGroup});
    }
  }
  if (isCutShort(path)) lines.back().push_back(damagedGroup);
  return lines;
}

}  // namespace

bool isCutShort(const std::string& scrambledPath) {
  std::ifstream file(nativePath(scrambledPath), std::ios::binary);
  char last = '\n';
  file.seekg(-1, std::ios::end).get(last);
  return last != '\n';
}

std::vector<std::string> salvagedLines(const std::string& scrambledPath) {
  std::vector<Groups> lines;
  try {
    lines = readGroups(scrambledPath);
  } catch (const RuntimeError& error) {
    if (error.number() != static_cast<int>(ErrorNumber::badFile)) throw;
  }
  std::vector<std::string> texts;
  i32 position = 0;
  for (std::size_t line = 0; line < lines.size(); ++line) {
    std::string text = textAt(lines[line], position);
    if (oddIn(text) > 0 && line < mostSearched) {
      position = bestPosition(lines, line, position);
      text = textAt(lines[line], position);
    }
    position = (position + static_cast<i32>(lines[line].size())) % keyPositions;
    texts.push_back(text);
  }
  return texts;
}

}  // namespace glonks
