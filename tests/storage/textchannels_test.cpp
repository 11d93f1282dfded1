#include "storage/files/textchannels.h"

#include <sys/stat.h>

#include <map>
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
  TextChannels() { ownDataFolders(); }
  // What `read` gives until the end of a file of these bytes.
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
  EXPECT_EQ(readAll("1,2\r\n3", readField), (Texts{"1", "2", "3"}));
  EXPECT_EQ(readAll("  \ta b \t, c \r\n", readField), (Texts{"\ta b \t", "c "}));
  EXPECT_EQ(readAll(",,\r\n\"\"\r\n\r\nx", readField), (Texts{"", "", "", "", "", "x"}));
  EXPECT_EQ(readAll("\"a, b\" junk,a\"b", readField), (Texts{"a, b", "a\"b"}));
  EXPECT_EQ(readAll("\"two\r\nlines\",\"open, ", readField), (Texts{"two\r\nlines", "open, "}));
}

TEST_F(TextChannels, ErrorsNameFileAndField) {
  putBytes("\\file", "a,b,c");
  openChannel(3, "\\file", ChannelMode::input, "\\init\\6095");
  EXPECT_EQ(readField(3, "first"), "a");
  EXPECT_EQ(readLine(3), "b,c") << "the rest of the line";
  EXPECT_EQ(errorOf([] { readField(3, "score"); }),
            "The file \"\\init\\6095\" is too short: its field score is missing.");
  EXPECT_PRED2(holds, errorOf([] { writeLine(3, "x"); }), "Channel 3");
}

TEST_F(TextChannels, OnlyRegularFilesOfBoundedSizeAreRead) {
  fs::create_symlink("/dev/zero", folder / "device");
  mkfifo((folder / "pipe").c_str(), 0600);
  putBytes("\\large", "");
  fs::resize_file(folder / "large", 1 << 21);
  for (const auto& [path, trouble] :
       std::map<std::string, std::string>{{"\\none", "can't be opened (No such file"},
                                          {"\\init", "can't be opened (it is no regular file)."},
                                          {"\\device", "can't be opened (it is no regular file)."},
                                          {"\\pipe", "can't be opened (it is no regular file)."},
                                          {"\\large", "is damaged: it is larger than 1 MB."}}) {
    const std::string told = "The file \"" + path + "\" " + trouble;
    EXPECT_PRED2(holds, errorOf([&] { openChannel(4, path, ChannelMode::input); }), told);
  }
  const std::string most(32767, 'x');
  for (const auto read : {&readLine, &readField}) {
    EXPECT_EQ(readAll(most + "\nend", read), (Texts{most, "end"}));
    putBytes("\\file", "1\n" + most + "x\nend");
    openChannel(3, "\\file", ChannelMode::input);
    EXPECT_EQ(read(3, ""), "1");
    EXPECT_EQ(errorOf([&] { read(3, ""); }),
              "The file \"\\file\" is damaged: line 2 is longer than 32,767 characters.");
    EXPECT_EQ(read(3, ""), "end");
    closeChannel(3);
  }
}

TEST_F(TextChannels, ReplacingKeepsTheOldFileUntilTheNewOneIsComplete) {
  const std::string path = "\\caf\xE9";
  const fs::path beside = folder / fs::path(u8"café.new");
  // One byte fits the buffer and fails at the end, 100,000 fail before.
  const auto replace = [&](std::size_t length, void (*end)(i16)) {
    openChannel(4, path, ChannelMode::replace);
    errorOf([&] { writeLine(4, std::string(length, 'x')); });
    const std::string error = errorOf([&] { end(4); });
    EXPECT_FALSE(fs::exists(fs::symlink_status(beside))) << length << ": " << error;
    return error;
  };
  putBytes(path, "old");
  EXPECT_EQ(replace(3, abandonChannel), "no error");
  for (const std::size_t length : {1U, 100'000U}) {
    fs::create_symlink("/dev/full", beside);
    EXPECT_PRED2(holds, replace(length, closeChannel), "\" can't be written") << length;
  }
  EXPECT_EQ(bytesOf(path), "old");
  EXPECT_EQ(replace(3, closeChannel), "no error");
  EXPECT_EQ(bytesOf(path), "xxx\r\n");
  fs::remove(folder / fs::path(u8"café"));
  fs::create_directory(folder / fs::path(u8"café"));
  EXPECT_PRED2(holds, replace(3, closeChannel), "\" can't be written") << "over a folder";
}

TEST_F(TextChannels, FieldsAsNumbers) {
  EXPECT_EQ(readAll("2.5,3.5,-2.5,-0.6,12abc,abc,,1e3,32767.4,-32768.5", readI16),
            (std::vector<i16>{2, 4, -2, -1, 12, 0, 0, 1000, 32767, -32768}));
  EXPECT_EQ(readAll("2147483647,-2147483648", readI32), (std::vector{2147483647, INT32_MIN}));
  EXPECT_EQ(readAll("0.5,0,-1,true,70000", readFlag), (std::vector<Flag>{-1, 0, -1, 0, -1}));
  EXPECT_EQ(readAll("2.9,-2.5,1e2", readWholeI16), (std::vector<i16>{2, -3, 100}));
  EXPECT_EQ(readAll("70000", readWholeI32), std::vector{70000});

  const auto expectError = [](auto read, const Texts& fields, const std::string& trouble) {
    for (const std::string& field : fields) {
      EXPECT_EQ(errorOf([&] { readAll(field + "\r\n", read); }),
                "The file \"\\file\" is damaged: its field lives " + trouble);
    }
  };
  expectError(readI16, {"32767.5", "-32769", "1e400"}, "is out of range.");
  expectError(readI32, {"2147483648", "-2147483649"}, "is out of range.");
  expectError(readWholeI16, {"1x", "", "1 2"}, "isn't a number.");
}

using Log = TempFolder;

TEST_F(Log, ARunToTheByte) {
  logEnabled = True;
  putBytes("\\log.txt", std::string(500, 'x'));  // of the run before
  openLog();
  logStep("initDX");
  for (std::string entry : {"a plain entry", ""}) writeLog(entry, flagOf(entry.empty()));
  const std::string opened =
      "LOG OPENED ON 01/02/03 AT 04:05:06\r\n04:05:06 :: initDX   \r\n"
      "04:05:06 :: a plain entry\r\n   \r\n";
  EXPECT_EQ(bytesOf("\\log.txt"), opened) << "a log that breaks off has to tell the last step";
  closeLog();
  EXPECT_EQ(bytesOf("\\log.txt"), opened + "LOG CLOSED ON 01/02/03 AT 04:05:06\r\n");
}

TEST_F(Log, TheProgramRunsOnWithoutALog) {
  mkfifo((folder / "pipe").c_str(), 0600);
  for (const fs::path& place : {folder, folder / "pipe", fs::path("/dev/full")}) {
    fs::remove(folder / "log.txt");
    fs::create_symlink(place, folder / "log.txt");
    logEnabled = True;
    openLog();
    EXPECT_TRUE(logEnabled == False && !isChannelOpen(logFileNo)) << place;
  }
}

}  // namespace
}  // namespace glonks
