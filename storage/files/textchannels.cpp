#include "storage/files/textchannels.h"

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <map>
#include <system_error>
#include <utility>

#include "base/errors.h"
#include "base/paths.h"
#include "storage/files/disk.h"

namespace glonks {
namespace {

namespace fs = std::filesystem;

constexpr i16 lastChannel = 511;
constexpr std::uintmax_t largestFile = 1U << 20U;  // bytes; the game's own have a few thousand

struct Channel {
  std::FILE* file = nullptr;
  ChannelMode mode = ChannelMode::input;
  std::string name;
  fs::path target;  // the file that the player knows
  fs::path beside;  // mode replace: the new file while it is being written
  i32 line = 1;     // mode input: where the next character stands
  int taken = EOF;  // mode input: the last byte taken
};

std::map<i16, Channel> channels;

[[noreturn]] void fail(ErrorNumber number, const std::string& name, const std::string& trouble) {
  throw RuntimeError(number, "The file \"" + name + "\" " + trouble);
}

std::string because(int error) { return std::string(" (") + std::strerror(error) + ")."; }

Channel& opened(i16 channel, bool forInput) {
  const auto found = channels.find(channel);
  if (found == channels.end() || (found->second.mode == ChannelMode::input) != forInput) {
    throw RuntimeError(ErrorNumber::channelUse,
                       "Channel " + std::to_string(channel) + " isn't open for this use.");
  }
  return found->second;
}

int rawByte(Channel& channel) {
  const int byte = std::fgetc(channel.file);
  if (byte == EOF && std::ferror(channel.file) != 0) {
    fail(ErrorNumber::fileAccess, channel.name, "can't be read" + because(errno));
  }
  return byte;
}

int nextByte(Channel& channel) {
  const int byte = rawByte(channel);
  if (byte == '\r' || (byte == '\n' && channel.taken != '\r')) ++channel.line;
  channel.taken = byte;
  return byte;
}

int peekByte(Channel& channel) {
  const int byte = rawByte(channel);
  if (byte != EOF) std::ungetc(byte, channel.file);
  return byte;
}

// After a CR: takes the LF that belongs to it.
void finishLineEnd(Channel& channel, int byte) {
  if (byte == '\r' && peekByte(channel) == '\n') nextByte(channel);
}

[[noreturn]] void failShort(const Channel& channel, const std::string& fieldName) {
  const std::string what = fieldName.empty() ? "a line" : "its field " + fieldName;
  fail(ErrorNumber::inputPastEnd, channel.name, "is too short: " + what + " is missing.");
}

[[noreturn]] void failLong(const Channel& channel, i32 line) {
  fail(ErrorNumber::badFile, channel.name,
       "is damaged: line " + std::to_string(line) + " is longer than " +
           std::to_string(longestLine) + " characters.");
}

bool isLineEnd(int byte) { return byte == '\n' || byte == '\r'; }

// Takes a byte into a line or field. What is longer than one may be isn't kept.
void take(std::string& text, int byte) {
  if (text.size() <= longestLine) text += static_cast<char>(byte);
}

// Raises for a file that can't be read to its end: a device may have none, and opening a pipe waits
// for whoever writes into it.
void checkReadable(const fs::path& place, const std::string& name) {
  std::error_code ignored;  // whatever prevents this check prevents the opening too
  if (!fs::exists(place, ignored)) return;
  if (!isRegularFile(place)) {
    fail(ErrorNumber::fileAccess, name, "can't be opened (it is no regular file).");
  }
  const std::uintmax_t size = fs::file_size(place, ignored);
  if (!ignored && size > largestFile) {
    fail(ErrorNumber::badFile, name, "is damaged: it is larger than 1 MB.");
  }
}

// The same for writing, where a device is as good as a file.
void checkWritable(const fs::path& place, const std::string& name) {
  std::error_code ignored;
  const fs::file_type type = fs::status(place, ignored).type();
  if (type == fs::file_type::directory || type == fs::file_type::fifo) {
    fail(ErrorNumber::fileAccess, name, "can't be written (it is no regular file).");
  }
}

}  // namespace

void openChannel(i16 channel, const std::string& path, ChannelMode mode,
                 const std::string& shownAs) {
  if (channel < 1 || channel > lastChannel || isChannelOpen(channel)) {
    throw RuntimeError(ErrorNumber::channelUse,
                       "Channel " + std::to_string(channel) + " can't be opened.");
  }
  Channel opening;
  opening.mode = mode;
  opening.name = shownAs.empty() ? path : shownAs;
  opening.target = nativePath(path);
  fs::path place = opening.target;
  if (mode == ChannelMode::replace) {
    opening.beside = opening.target;
    opening.beside += ".new";
    place = opening.beside;
  }
  const bool reads = mode == ChannelMode::input;
  reads ? checkReadable(place, opening.name) : checkWritable(place, opening.name);
  opening.file = openFile(place, reads ? "rb" : "wb");
  if (opening.file == nullptr) {
    const bool missing = reads && errno == ENOENT;
    fail(missing ? ErrorNumber::fileNotFound : ErrorNumber::fileAccess, opening.name,
         (reads ? "can't be opened" : "can't be written") + because(errno));
  }
  channels[channel] = opening;
}

i16 freeChannel() {
  i16 channel = 1;
  while (isChannelOpen(channel)) ++channel;
  return channel;
}

bool isChannelOpen(i16 channel) { return channels.count(channel) != 0; }

const std::string& channelName(i16 channel) {
  static const std::string none;
  const auto found = channels.find(channel);
  return found == channels.end() ? none : found->second.name;
}

bool endOfFile(i16 channel) { return peekByte(opened(channel, true)) == EOF; }

i32 channelLine(i16 channel) { return opened(channel, true).line; }

std::string readLine(i16 channel, const std::string& fieldName) {
  Channel& from = opened(channel, true);
  const i32 number = from.line;
  int byte = nextByte(from);
  if (byte == EOF) failShort(from, fieldName);
  std::string line;
  for (; byte != EOF && !isLineEnd(byte); byte = nextByte(from)) take(line, byte);
  finishLineEnd(from, byte);
  if (line.size() > longestLine) failLong(from, number);
  return line;
}

std::string readField(i16 channel, const std::string& fieldName) {
  Channel& from = opened(channel, true);
  const i32 number = from.line;
  int byte = nextByte(from);
  if (byte == EOF) failShort(from, fieldName);
  while (byte == ' ') byte = nextByte(from);
  std::string field;
  const auto ends = [](int c) { return c == EOF || c == ',' || isLineEnd(c); };
  if (byte == '"') {
    for (byte = nextByte(from); byte != EOF && byte != '"'; byte = nextByte(from)) {
      take(field, byte);
    }
    while (!ends(byte)) byte = nextByte(from);
  } else {
    for (; !ends(byte); byte = nextByte(from)) take(field, byte);
  }
  finishLineEnd(from, byte);
  if (field.size() > longestLine) failLong(from, number);
  return field;
}

void writeLine(i16 channel, const std::string& text) {
  Channel& to = opened(channel, false);
  const std::string line = text + "\r\n";
  if (std::fwrite(line.data(), 1, line.size(), to.file) != line.size()) {
    fail(ErrorNumber::fileAccess, to.name, "can't be written" + because(errno));
  }
}

void flushChannel(i16 channel) {
  Channel& to = opened(channel, false);
  if (std::fflush(to.file) != 0) {
    fail(ErrorNumber::fileAccess, to.name, "can't be written" + because(errno));
  }
}

void closeChannel(i16 channel) {
  const auto found = channels.find(channel);
  if (found == channels.end()) return;
  const Channel closing = std::move(found->second);
  channels.erase(found);

  // A write that failed long ago still counts, also if the disk has room again.
  errno = EIO;
  bool complete = closing.mode == ChannelMode::input ||
                  (std::ferror(closing.file) == 0 && std::fflush(closing.file) == 0);
  if (closing.mode == ChannelMode::replace) complete = complete && flushToDisk(closing.file);
  std::error_code error(complete ? 0 : errno, std::generic_category());
  if (std::fclose(closing.file) != 0 && complete) {
    complete = false;
    error.assign(errno, std::generic_category());
  }
  if (closing.mode == ChannelMode::replace && complete) {
    error = replaceFile(closing.target, closing.beside);
  }
  if (error) {
    std::error_code ignored;
    if (closing.mode == ChannelMode::replace) fs::remove(closing.beside, ignored);
    fail(ErrorNumber::fileAccess, closing.name, "can't be written (" + error.message() + ").");
  }
}

void abandonChannel(i16 channel) {
  const auto found = channels.find(channel);
  if (found == channels.end()) return;
  const Channel closing = std::move(found->second);  // in destructors: must not fail
  channels.erase(found);
  std::fclose(closing.file);
  std::error_code ignored;
  if (closing.mode == ChannelMode::replace) fs::remove(closing.beside, ignored);
}

}  // namespace glonks
