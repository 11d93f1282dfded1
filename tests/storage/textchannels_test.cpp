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
  ~TextChannels() override {
    for (i16 channel = 1; channel <= 9; ++channel) abandonChannel(channel);
  }
  // What `read` gives until the end of a file of these bytes.
  template <typename Read>
  static Texts readAll(const std::string& bytes, Read read) {
    putBytes("\\file", bytes);
    openChannel(3, "\\file", ChannelMode::input);
    Texts texts;
    while (!endOfFile(3)) texts.push_back(read());
    closeChannel(3);
    return texts;
  }
};

TEST_F(TextChannels, LinesEndInThreeWays) {
  const struct {
    std::string bytes;
    Texts lines;
  } table[] = {
      {"", {}},
      {"a\r\nb\nc\rd", {"a", "b", "c", "d"}},
      {"a\r", {"a"}},
      {"a\r\r\nb\n\nc", {"a", "", "b", "", "c"}},
      {"a\n\rb", {"a", "", "b"}},
      {std::string("\0\x1A\xFF,\"\n", 6), {std::string("\0\x1A\xFF,\"", 5)}},
      {std::string(100'000, 'x'), {std::string(100'000, 'x')}},
  };
  for (const auto& row : table) {
    EXPECT_EQ(readAll(row.bytes, [] { return readLine(3); }), row.lines) << row.bytes.substr(0, 99);
  }
}

TEST_F(TextChannels, FieldsEndAtCommasAndLineEnds) {
  const struct {
    std::string bytes;
    Texts fields;
  } table[] = {
      {"1,2\r\n3", {"1", "2", "3"}},
      {"\"a, b\",c\r\n", {"a, b", "c"}},
      {" \ta b \t, c \r\n", {"a b", "c"}},
      {",,\r\nx", {"", "", "", "x"}},
      {"\"\"\r\nx\n", {"", "x"}},
      {"\r\n\r\n", {"", ""}},
      {"\"a\" junk,b", {"a", "b"}},
      {"a\"b,c", {"a\"b", "c"}},
      {"\"open, to the end", {"open, to the end"}},
      {"\"two\r\nlines\",x", {"two\r\nlines", "x"}},
  };
  for (const auto& row : table) {
    EXPECT_EQ(readAll(row.bytes, [] { return readField(3, "f"); }), row.fields) << row.bytes;
  }
  putBytes("\\file", "a,b,c\r\nd");
  openChannel(3, "\\file", ChannelMode::input);
  EXPECT_EQ(readField(3, "first"), "a");
  EXPECT_EQ(readLine(3), "b,c") << "the rest of the line";
  EXPECT_EQ(readField(3, "last"), "d");
}

TEST_F(TextChannels, ErrorsNameFileAndField) {
  putBytes("\\file", "1");
  openChannel(3, "\\file", ChannelMode::input, "\\init\\6095");
  readLine(3);
  for (const std::string& error :
       {errorOf([] { readField(3, "score"); }), errorOf([] { readLine(3, "score"); })}) {
    EXPECT_PRED2(holds, error, "\"\\init\\6095\"");
    EXPECT_PRED2(holds, error, "score");
  }
  EXPECT_PRED2(holds, errorOf([] { openChannel(4, "\\init\\0000", ChannelMode::input); }),
               "\"\\init\\0000\" can't be opened");
  EXPECT_PRED2(holds, errorOf([] { openChannel(4, "\\none\\x", ChannelMode::output); }),
               "\"\\none\\x\" can't be written");
  EXPECT_FALSE(isChannelOpen(4));
}

TEST_F(TextChannels, MisuseIsRaised) {
  putBytes("\\in", "x");
  openChannel(3, "\\in", ChannelMode::input);
  openChannel(4, "\\out", ChannelMode::output);
  EXPECT_EQ(freeChannel(), 1);
  EXPECT_PRED2(holds, errorOf([] { writeLine(3, "x"); }), "Channel 3");
  EXPECT_PRED2(holds, errorOf([] { readField(4, "f"); }), "Channel 4");
  EXPECT_PRED2(holds, errorOf([] { endOfFile(5); }), "Channel 5");
  for (const i16 channel : {i16{3}, i16{0}, i16{512}}) {
    EXPECT_PRED2(holds, errorOf([&] { openChannel(channel, "\\in", ChannelMode::input); }),
                 "Channel");
  }
  EXPECT_EQ(readLine(3), "x") << "what was open reads on";
}

TEST_F(TextChannels, ReplacingKeepsTheOldFileUntilTheNewOneIsComplete) {
  putBytes("\\file", "old");
  openChannel(4, "\\file", ChannelMode::replace);
  writeLine(4, "abandoned");
  flushChannel(4);
  EXPECT_EQ(bytesOf("\\file"), "old");
  abandonChannel(4);
  EXPECT_EQ(bytesOf("\\file"), "old");
  EXPECT_FALSE(exists("\\file.new"));

  openChannel(4, "\\file", ChannelMode::replace);
  writeLine(4, "new");
  EXPECT_EQ(bytesOf("\\file"), "old");
  closeChannel(4);
  EXPECT_EQ(bytesOf("\\file"), "new\r\n");
  EXPECT_FALSE(exists("\\file.new"));
}

TEST_F(TextChannels, AFolderIsNoFile) {
  EXPECT_PRED2(holds, errorOf([] { openChannel(3, "\\init", ChannelMode::input); }), "\"\\init\"");
  EXPECT_PRED2(holds, errorOf([] { openChannel(3, "\\init", ChannelMode::output); }), "\"\\init\"");
  EXPECT_PRED2(holds, errorOf([] {
                 openChannel(3, "\\init", ChannelMode::replace);
                 closeChannel(3);
               }),
               "\"\\init\" can't be written");
  EXPECT_TRUE(fs::is_directory(folder / "init"));
  EXPECT_FALSE(exists("\\init.new"));
  EXPECT_FALSE(isChannelOpen(3));
}

TEST_F(TextChannels, AFullDiskIsRaised) {
  if (!fs::exists("/dev/full")) GTEST_SKIP();
  fs::create_symlink("/dev/full", folder / "full");
  openChannel(4, "\\full", ChannelMode::output);
  writeLine(4, "x");
  EXPECT_PRED2(holds, errorOf([] { flushChannel(4); }), "\"\\full\" can't be written");

  // At the close, whether the line fits the buffer and fails then, or has failed before.
  for (const std::size_t length : {1U, 100'000U}) {
    putBytes("\\kept", "old");
    fs::create_symlink("/dev/full", folder / "kept.new");
    openChannel(5, "\\kept", ChannelMode::replace);
    errorOf([&] { writeLine(5, std::string(length, 'x')); });
    EXPECT_PRED2(holds, errorOf([] { closeChannel(5); }), "\"\\kept\" can't be written");
    EXPECT_FALSE(isChannelOpen(5));
    EXPECT_FALSE(fs::is_symlink(folder / "kept")) << "an incomplete file has taken its place";
    EXPECT_FALSE(fs::is_symlink(folder / "kept.new"));
  }
}

TEST_F(TextChannels, NamesOfFilesAreWindows1252) {
  putBytes("\\init\\caf\xE9 \x80", "x");
  EXPECT_TRUE(fs::exists(folder / "init" / fs::path(u8"café €")));
  EXPECT_EQ(nativePath("/elsewhere/x\\y"), fs::path("/elsewhere/x\\y"));
}

TEST_F(TextChannels, FieldsAsNumbers) {
  const std::string range = "is out of range";
  const std::string none = "isn't a number";
  using Reader = std::string (*)(const std::string&);
  using Row = std::pair<std::string, std::string>;  // a field, and its value or the trouble with it
  const std::pair<Reader, std::vector<Row>> table[] = {
      {[](const std::string& name) { return std::to_string(readI16(3, name)); },
       {{"2.5", "2"},
        {"3.5", "4"},
        {"-2.5", "-2"},
        {"-0.6", "-1"},
        {"12abc", "12"},
        {"abc", "0"},
        {"", "0"},
        {"1e3", "1000"},
        {"32767.4", "32767"},
        {"-32768.5", "-32768"},
        {"32767.5", range},
        {"-32769", range},
        {"1e400", range}}},
      {[](const std::string& name) { return std::to_string(readI32(3, name)); },
       {{"40000", "40000"},
        {"2147483647", "2147483647"},
        {"2147483648", range},
        {"-2147483649", range}}},
      {[](const std::string& name) { return std::to_string(readFlag(3, name)); },
       {{"0.5", "-1"}, {"0", "0"}, {"-1", "-1"}, {"true", "0"}, {"70000", "-1"}}},
      {[](const std::string& name) { return std::to_string(readWholeI16(3, name)); },
       {{"2.9", "2"},
        {"-2.5", "-3"},
        {"1e2", "100"},
        {"1x", none},
        {"", none},
        {"1 2", none},
        {"32768", range}}},
      {[](const std::string& name) { return std::to_string(readWholeI32(3, name)); },
       {{"70000", "70000"}, {"one", none}, {"1e10", range}}},
  };
  for (const auto& [reader, rows] : table) {
    for (const auto& [text, result] : rows) {
      putBytes("\\file", text + "\r\n");
      openChannel(3, "\\file", ChannelMode::input);
      std::string value;
      const std::string error = errorOf([&, &read = reader] { value = read("lives"); });
      closeChannel(3);
      const bool bad = result == range || result == none;
      const std::string damage = "The file \"\\file\" is damaged: its field lives ";
      EXPECT_EQ(error, bad ? damage + result + "." : "no error") << '"' << text << '"';
      EXPECT_EQ(value, bad ? "" : result) << '"' << text << '"';
    }
  }
}

}  // namespace
}  // namespace glonks
