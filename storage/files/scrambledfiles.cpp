#include "storage/files/scrambledfiles.h"

#include <charconv>
#include <cmath>
#include <filesystem>
#include <string_view>

#include "base/errors.h"
#include "base/paths.h"
#include "base/random.h"
#include "base/text.h"
#include "storage/files/channels.h"
#include "storage/files/textchannels.h"

namespace glonks {
namespace {

constexpr int codes = 256;

i16 drawKey(i16 drawArgument, i16 scale) {
  const float r = rtcRandomNext(drawArgument);
  return static_cast<i16>(std::floor(r * static_cast<float>(scale)) + 1);
}

int keySum() { return keyA[keyIndexA] + keyB[keyIndexB]; }

int code(char c) { return static_cast<unsigned char>(c); }

// What is wrong with a line; changeFile says in which file and where.
[[noreturn]] void failLine(const std::string& trouble) {
  throw RuntimeError(ErrorNumber::badFile, trouble);
}

i16 groupOf(std::string_view digits) {
  std::uint8_t number = 0;  // stays so without digits
  const char* const end = digits.data() + digits.size();
  const auto [rest, error] = std::from_chars(digits.data(), end, number);
  return rest == end && error != std::errc::result_out_of_range ? number : damagedGroup;
}

// Writes each line of the source, changed by `change`, to the target. What `change` raises tells
// only the trouble with its line.
template <typename Change>
void changeFile(const std::string& source, const std::string& target, ChannelMode targetMode,
                Change change) {
  resetKeys();
  // Errors name the file that the player knows.
  const std::string& shown = source == tempPath ? target : source;
  openChannel(sourceChannel, source, ChannelMode::input, shown);
  const ChannelGuard sourceGuard(sourceChannel);
  openChannel(targetChannel, target, targetMode);
  const ChannelGuard targetGuard(targetChannel);
  for (i32 number = 1; !endOfFile(sourceChannel); ++number) {
    const std::string line = readLine(sourceChannel);
    std::string changed;
    try {
      changed = change(line);
      if (changed.size() > longestLine) {
        failLine("is longer than " + plainNumber(longestLine) + " characters.");
      }
    } catch (const RuntimeError& error) {
      throw RuntimeError(ErrorNumber::badFile, "The file \"" + shown + "\" is damaged: line " +
                                                   plainNumber(number) + " " + error.what());
    }
    writeLine(targetChannel, changed);
  }
  closeChannel(sourceChannel);
  closeChannel(targetChannel);
}

}  // namespace

std::string reverseText(const std::string& text) { return {text.rbegin(), text.rend()}; }

void resetKeys() {
  keyIndexA = 0;
  keyIndexB = 0;
}

void makeKeys(i16 seed, i16 drawArgument, i16 scale) {
  if (keysMade != False) return;
  resetKeys();
  rtcRandomize(seed);
  for (i16& entry : keyA) entry = drawKey(drawArgument, scale);
  for (i16& entry : keyB) entry = drawKey(drawArgument, scale);
  keysMade = True;
}

void advanceKeys() {
  ++keyIndexA;
  ++keyIndexB;
  if (keyIndexB >= keyBLength) keyIndexB = 0;
  if (keyIndexA >= keyALength) keyIndexA = 0;
}

char scrambleChar(char c) { return static_cast<char>((code(c) + keySum()) % codes); }

char unscrambleChar(char c) {
  const int rest = (code(c) - keySum()) % codes;
  return static_cast<char>(rest < 0 ? rest + codes : rest);
}

std::vector<i16> groupsOf(const std::string& scrambled) {
  std::vector<i16> groups;
  std::size_t from = 0;
  for (std::size_t end = 0; (end = scrambled.find('.', from)) != std::string::npos;) {
    groups.push_back(groupOf(std::string_view(scrambled).substr(from, end - from)));
    from = end + 1;
  }
  const bool isDigits = scrambled.find_first_not_of("0123456789", from) == std::string::npos;
  if (!isDigits) groups.push_back(damagedGroup);
  return groups;
}

std::string scrambleLine(const std::string& text) {
  std::string scrambled;
  for (const char c : text) {
    scrambled += plainNumber(code(scrambleChar(c)));
    scrambled += '.';
    advanceKeys();
  }
  return scrambled;
}

std::string unscrambleLine(const std::string& scrambled) {
  std::string text;
  for (const i16 group : groupsOf(scrambled)) {
    if (group == damagedGroup) failLine("holds a group that is no number from 0 to 255.");
    text += unscrambleChar(static_cast<char>(group));
    advanceKeys();
  }
  return text;
}

void scrambleFile(const std::string& plainPath, const std::string& scrambledPath) {
  changeFile(plainPath, scrambledPath, ChannelMode::replace,
             [](const std::string& line) { return scrambleLine(reverseText(line)); });
}

void unscrambleFile(const std::string& scrambledPath, const std::string& plainPath) {
  changeFile(scrambledPath, plainPath, ChannelMode::output,
             [](const std::string& line) { return reverseText(unscrambleLine(line)); });
}

void TempFileGuard::remove() {
  std::error_code ignored;
  std::filesystem::remove(nativePath(tempPath), ignored);
}

ScrambledReader::ScrambledReader(const std::string& scrambledPath, i16 channel)
    : channel_(channel) {
  unscrambleFile(scrambledPath, tempPath);
  openChannel(channel, tempPath, ChannelMode::input, scrambledPath);
}

ScrambledReader::~ScrambledReader() { abandonChannel(channel_); }

void ScrambledReader::close() {
  closeChannel(channel_);
  temp_.remove();
}

ScrambledWriter::ScrambledWriter(const std::string& scrambledPath) : scrambledPath_(scrambledPath) {
  openChannel(playersChannel, tempPath, ChannelMode::output, scrambledPath);
}

ScrambledWriter::~ScrambledWriter() { abandonChannel(playersChannel); }

void ScrambledWriter::close() {
  closeChannel(playersChannel);
  scrambleFile(tempPath, scrambledPath_);
  temp_.remove();
}

}  // namespace glonks
