#include "storage/files/textchannels.h"

#include <vector>

#include "storage/files/fieldreader.h"
#include "storage/files/log.h"
#include "tests/tempfolder.h"

namespace glonks {
namespace {

namespace fs = std::filesystem;
using Texts = std::vector<std::string>;

class TextChannels : public TempFolder {
 protected:
  // What `read` returns until the end of a file of these bytes.
  template <typename Read>
  static auto readAll(const std::string& bytes, Read read) {
    putBytes("\\file", bytes);
    openChannel(3, "\\file", ChannelMode::input);
    const ChannelGuard guard(3);
    std::vector<decltype(read(3, ""))> values;
    while (!endOfFile(3)) values.push_back(read(3, "lives"));
    return values;
  }
  const ChannelGuard guards[2] = {ChannelGuard(3), ChannelGuard(4)};
};

TEST_F(TextChannels, LinesEndInThreeWaysAndFieldsAtCommasToo) {
  EXPECT_EQ(readAll("a\r\r\n\rb\n\nc\r", readLine), (Texts{"a", "", "", "b", "", "c"}));
  EXPECT_EQ(readAll(std::string("\0\x1A\xFF,\"", 5), readLine), (Texts{{"\0\x1A\xFF,\"", 5}}));
  EXPECT_EQ(readAll("  \ta b \t, c \r\n", readField), (Texts{"\ta b \t", "c "}));
  EXPECT_EQ(readAll(",,\r\n\"\"\r\n\r\nx", readField), (Texts{"", "", "", "", "", "x"}));
  EXPECT_EQ(readAll("\"a, b\" junk,a\"b", readField), (Texts{"a, b", "a\"b"}));
  EXPECT_EQ(readAll("\"two\r\nlines\",\"open, ", readField), (Texts{"two\r\nlines", "open, "}));
  putBytes("\\file", "a,b,c");
  openChannel(3, "\\file", ChannelMode::input, "\\init\\6095");
  EXPECT_EQ(readField(3, "first"), "a");
  EXPECT_EQ(readLine(3), "b,c") << "the rest of the line";
  EXPECT_EQ(errorOf([] { readField(3, "score"); }),
            "The file \"\\init\\6095\" is too short: its field score is missing.");
}

TEST_F(TextChannels, OnlyRegularFilesOfBoundedSizeAreRead) {
  Texts irregular = {"\\init"};
  if (makeLink("/dev/zero", folder / "device")) irregular.push_back("\\device");
  putBytes("\\large", std::string((1 << 20) + 1, 'x'));
  const auto opening = [](const std::string& path) {
    return errorOf([&] { openChannel(4, path, ChannelMode::input); });
  };
  EXPECT_PRED2(holds, opening("\\none"), "\"\\none\" can't be opened (No such file");
  EXPECT_PRED2(holds, opening("\\large"), "\"\\large\" is damaged: it is larger than 1 MB.");
  for (const std::string& path : irregular) {
    EXPECT_PRED2(holds, opening(path), "can't be opened (it is no regular file).") << path;
  }
  const std::string most(32767, 'x');
  for (const auto read : {&readLine, &readField}) {
    EXPECT_EQ(readAll(most + "\nend", read), (Texts{most, "end"}));
    EXPECT_EQ(errorOf([&] { readAll("1\n" + most + "x", read); }),
              "The file \"\\file\" is damaged: line 2 is longer than 32767 characters.");
  }
}

// One byte fits the buffer and fails at the end, 100,000 fail before.
TEST_F(TextChannels, ReplacingKeepsTheOldFileUntilTheNewOneIsComplete) {
  const std::string path = "\\caf\xE9";
  const fs::path beside = folder / fs::path(u8"café.new");
  putBytes(path, "old");
  for (const std::size_t length : {1U, 100'000U}) {
    if (!makeLink("/dev/full", beside)) GTEST_SKIP() << "no device that is always full";
    openChannel(4, path, ChannelMode::replace);
    errorOf([&] { writeLine(4, std::string(length, 'x')); });
    EXPECT_PRED2(holds, errorOf([] { closeChannel(4); }), "\" can't be written") << length;
    EXPECT_TRUE(!fs::is_symlink(beside) && bytesOf(path) == "old") << length;
  }
}

TEST_F(TextChannels, FieldsAsNumbers) {
  EXPECT_EQ(readAll("2.5,3.5,-2.5,12abc,abc,,1e3,32767.4,-32768.5", readI16),
            (std::vector<i16>{2, 4, -2, 12, 0, 0, 1000, 32767, -32768}));
  EXPECT_EQ(readAll("2147483647,-2147483648", readI32), (std::vector{2147483647, INT32_MIN}));
  EXPECT_EQ(readAll("0.5,0,-1,true,70000", readFlag), (std::vector<Flag>{-1, 0, -1, 0, -1}));
  EXPECT_EQ(readAll("2.9,-2.5,1e2", readWholeI16), (std::vector<i16>{2, -3, 100}));
  EXPECT_PRED2(holds, errorOf([] { readAll("32767.5", readI16); }), "lives is out of range.");
  EXPECT_PRED2(holds, errorOf([] { readAll("1x\r\n", readWholeI16); }), "lives isn't a number.");
}

using Log = TempFolder;

// A log that breaks off has to show the last step; without any the program runs on.
TEST_F(Log, ARunToTheByte) {
  logEnabled = True;
  putBytes("\\log.txt", std::string(500, 'x'));  // of the run before
  openLog();
  logStep("initDX");
  for (std::string entry : {"a plain entry", ""}) writeLog(entry, flagOf(entry.empty()));
  const std::string opened =
      "LOG OPENED ON 01/02/03 AT 04:05:06\r\n04:05:06 :: initDX   \r\n"
      "04:05:06 :: a plain entry\r\n   \r\n";
  EXPECT_EQ(bytesOf("\\log.txt"), opened);
  closeLog();
  EXPECT_EQ(bytesOf("\\log.txt"), opened + "LOG CLOSED ON 01/02/03 AT 04:05:06\r\n");
  fs::remove(folder / "log.txt");
  if (!makeLink("/dev/full", folder / "log.txt")) fs::create_directory(folder / "log.txt");
  logEnabled = True;
  openLog();
  EXPECT_TRUE(logEnabled == False && !isChannelOpen(logFileNo));
}

}  // namespace
}  // namespace glonks
