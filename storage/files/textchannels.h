#pragma once

#include <string>

#include "base/types.h"

// Text files on numbered channels. A line ends at CR LF, LF or CR when read, and is written with
// CR LF. Every failure raises a RuntimeError that names the file, or, for the wrong use of a
// channel (channelUse), the channel.
namespace glonks {

// The most characters that a line or field may have.
inline constexpr std::size_t longestLine = 32767;

enum class ChannelMode {
  input,   // reads an existing file
  output,  // writes a new file, at once in the place of the old one
  replace  // writes beside the file, and puts the complete, flushed new one in its place on
           // closing; until then, and if anything fails, the old file stands
};

// Opens `path` (a game path, see nativePath) on `channel`, 1 to 511, which must be free. Errors
// name the file as `shownAs`, or as `path` if that is empty. Raises fileNotFound if there is no
// file to read, badFile if it is larger than 1 MB, and fileAccess if it can't be opened now or is
// no regular file; devices may be written to.
void openChannel(i16 channel, const std::string& path, ChannelMode mode,
                 const std::string& shownAs = "");

// The lowest channel number that isn't open.
i16 freeChannel();
bool isChannelOpen(i16 channel);

// The name by which errors call the channel's file.
const std::string& channelName(i16 channel);

// Whether an input channel has nothing left to read.
bool endOfFile(i16 channel);

// The line, counted from 1, of the next character of an input channel.
i32 channelLine(i16 channel);

// The rest of the current line, without its end. Raises inputPastEnd at the end of the file, naming
// what should have stood there as `fieldName`, if it has a name; badFile for a line that is too
// long, with the channel at the line after it; and fileAccess for a file that can't be read on.
std::string readLine(i16 channel, const std::string& fieldName = "");

// The next field: it ends at a comma or the end of the line, spaces before it are skipped, and in
// double quotes it keeps its commas and loses the quotes. Raises as readLine does.
std::string readField(i16 channel, const std::string& fieldName);

// Writes `text` and a line end.
void writeLine(i16 channel, const std::string& text);

// Hands what has been written to the system.
void flushChannel(i16 channel);

// Closes the channel; with mode `replace` the file is replaced now. Raises fileAccess if what was
// written can't be kept; the channel is closed all the same.
void closeChannel(i16 channel);

// Closes the channel, if it is open, and reports nothing; with mode `replace` the old file stays.
void abandonChannel(i16 channel);

// Abandons its channel on destruction, so that a reader or writer that fails leaves nothing open.
class ChannelGuard {
 public:
  explicit ChannelGuard(i16 channel) : channel_(channel) {}
  ~ChannelGuard() { abandonChannel(channel_); }
  ChannelGuard(const ChannelGuard&) = delete;
  ChannelGuard& operator=(const ChannelGuard&) = delete;

 private:
  i16 channel_;
};

}  // namespace glonks
