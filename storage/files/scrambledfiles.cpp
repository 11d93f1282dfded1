#include "storage/files/scrambledfiles.h"

#include <cmath>
#include <filesystem>

#include "base/errors.h"
#include "base/paths.h"
#include "base/random.h"
#include "base/text.h"
#include "storage/files/textchannels.h"

namespace glonks {
namespace {

constexpr i16 sourceChannel = 24;
constexpr i16 targetChannel = 25;
constexpr int codes = 256;

i16 drawKey(i16 drawArgument, i16 scale) {
  const float r = rtcRandomNext(drawArgument);
  return static_cast<i16>(std::floor(r * static_cast<float>(scale)) + 1);
}

int keySum() { return keyA[keyIndexA] + keyB[keyIndexB]; }

int code(char c) { return static_cast<unsigned char>(c); }

// Where the line at work stands, for errors.
std::string place;

[[noreturn]] void failLine(const std::string& trouble) {
  throw RuntimeError(ErrorNumber::badFile, place + " " + trouble);
}

bool isDigits(const std::string& text) {
  return text.find_first_not_of("0123456789") == std::string::npos;
}

// Writes each line of the source, changed by `change`, to the target.
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
    place = "The file \"" + shown + "\" is damaged: line " + plainNumber(number);
    const std::string changed = change(line);
    if (changed.size() > longestLine) failLine("is longer than 32,767 characters.");
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
    const std::string group = scrambled.substr(from, end - from);
    const double number = isDigits(group) ? leadingNumber(group) : codes;
    groups.push_back(number < codes ? static_cast<i16>(number) : damagedGroup);
    from = end + 1;
  }
  if (!isDigits(scrambled.substr(from))) groups.push_back(damagedGroup);
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
  openChannel(channel, tempPath, ChannelMode::output, scrambledPath);
}

ScrambledWriter::~ScrambledWriter() { abandonChannel(channel); }

void ScrambledWriter::close() {
  closeChannel(channel);
  scrambleFile(tempPath, scrambledPath_);
  temp_.remove();
}

}  // namespace glonks
