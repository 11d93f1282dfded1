#include "storage/textchannels.h"

#include <vector>

#include "storage/fieldreader.h"
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

TEST_F(TextChannels, LinesEndInThreeWays) {
  EXPECT_EQ(readAll("", readLine), Texts{});
  EXPECT_EQ(readAll("a\r\nb\nc\rd", readLine), (Texts{"a", "b", "c", "d"}));
  EXPECT_EQ(readAll("a\r\r\n\rb\n\nc\r", readLine), (Texts{"a", "", "", "b", "", "c"}));
  EXPECT_EQ(readAll(std::string("\0\x1A\xFF,\"", 5), readLine), Texts{{"\0\x1A\xFF,\"", 5}});
}

TEST_F(TextChannels, FieldsEndAtCommasAndLineEnds) {
  EXPECT_EQ(readAll("1,2\r\n3", readField), (Texts{"1", "2", "3"}));
  EXPECT_EQ(readAll(" \ta b \t, c \r\n", readField), (Texts{"a b", "c"}));
  EXPECT_EQ(readAll(",,\r\n\"\"\r\n\r\nx", readField), (Texts{"", "", "", "", "", "x"}));
  EXPECT_EQ(readAll("\"a, b\" junk,a\"b", readField), (Texts{"a, b", "a\"b"}));
  EXPECT_EQ(readAll("\"two\r\nlines\",\"open, ", readField), (Texts{"two\r\nlines", "open, "}));
}

TEST_F(TextChannels, ErrorsNameFileAndField) {
  putBytes("\\file", "a,b,c");
  openChannel(3, "\\file", ChannelMode::input, "\\init\\6095");
  EXPECT_EQ(readField(3, "first"), "a");
  EXPECT_EQ(readLine(3), "b,c") << "the rest of the line";
  const std::string end = "The file \"\\init\\6095\" is too short: its field score is missing.";
  EXPECT_EQ(errorOf([] { readField(3, "score"); }), end);
  EXPECT_EQ(errorOf([] { readLine(3, "score"); }), end);
  EXPECT_PRED2(holds, errorOf([] { writeLine(3, "x"); }), "Channel 3");
  for (const auto& [path, mode, trouble] :
       {std::tuple{"\\none", ChannelMode::input, "\"\\none\" can't be opened"},
        {"\\none\\x", ChannelMode::output, "\"\\none\\x\" can't be written"},
        {"\\init", ChannelMode::input, "\"\\init\" can't be opened"},
        {"\\init", ChannelMode::replace, "\"\\init\" can't be written"}}) {
    const auto openAndClose = [p = path, m = mode] {
      openChannel(4, p, m);
      closeChannel(4);
    };
    EXPECT_PRED2(holds, errorOf(openAndClose), trouble);
    EXPECT_FALSE(isChannelOpen(4));
  }
  EXPECT_FALSE(exists("\\init.new"));
}

TEST_F(TextChannels, ReplacingKeepsTheOldFileUntilTheNewOneIsComplete) {
  const std::string path = "\\caf\xE9";
  putBytes(path, "old");
  openChannel(4, path, ChannelMode::replace);
  writeLine(4, "abandoned");
  flushChannel(4);
  EXPECT_EQ(bytesOf(path), "old");
  abandonChannel(4);
  EXPECT_EQ(bytesOf(path), "old");
  openChannel(4, path, ChannelMode::replace);
  writeLine(4, "new");
  closeChannel(4);
  EXPECT_EQ(bytesOf(path), "new\r\n");
  EXPECT_FALSE(exists(path + ".new"));

  // On a full disk, whether the line fits the buffer and fails at the end, or has failed before.
  const fs::path native = folder / fs::path(u8"café");
  for (const std::size_t length : {1U, 100'000U}) {
    fs::create_symlink("/dev/full", folder / fs::path(u8"café.new"));
    openChannel(4, path, ChannelMode::replace);
    errorOf([&] { writeLine(4, std::string(length, 'x')); });
    EXPECT_PRED2(holds, errorOf([] { closeChannel(4); }), "\" can't be written");
    EXPECT_FALSE(fs::is_symlink(native)) << "an incomplete file has taken its place";
    EXPECT_FALSE(exists(path + ".new"));
  }
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
  expectError(readWholeI16, {"32768"}, "is out of range.");
  expectError(readWholeI16, {"1x", "", "1 2"}, "isn't a number.");
  expectError(readWholeI32, {"one"}, "isn't a number.");
}

}  // namespace
}  // namespace glonks
