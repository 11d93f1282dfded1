#include "storage/scrambledfiles.h"

#include <algorithm>
#include <numeric>
#include <vector>

#include "storage/textchannels.h"
#include "tests/tempfolder.h"

namespace glonks {
namespace {

using Lines = std::vector<std::string>;

const std::string dataPath = "\\init\\6095";
const std::string plainPath = "\\plain";

class ScrambledFiles : public TempFolder {
 protected:
  ScrambledFiles() {
    ownDataFolders();
    makeKeys(keySeed, keyDrawArgument, keyScale);
  }
  ~ScrambledFiles() override {
    for (const i16 channel : {i16{3}, i16{4}, i16{24}, i16{25}}) abandonChannel(channel);
  }
  // Channels closed, and no file left but the named ones.
  void expectTidy(std::size_t filesInInit) const {
    for (const i16 channel : {i16{3}, i16{4}, i16{24}, i16{25}})
      EXPECT_FALSE(isChannelOpen(channel));
    EXPECT_FALSE(exists(tempPath));
    using Walk = std::filesystem::directory_iterator;
    const auto count = std::distance(Walk(folder / "init"), Walk());
    EXPECT_EQ(static_cast<std::size_t>(count), filesInInit);
  }
};

std::string asFile(const Lines& lines) {
  std::string bytes;
  for (const std::string& line : lines) bytes += line + "\r\n";
  return bytes;
}

// The scrambled form, told a second time: the n-th group of the file is the character plus entry
// n of both tables, from each line's last character to its first.
std::string model(const Lines& lines) {
  std::string bytes;
  int n = 0;
  for (const std::string& line : lines) {
    for (std::size_t left = line.size(); left > 0; --left, ++n) {
      const int code = static_cast<unsigned char>(line[left - 1]);
      bytes += std::to_string((code + keyA[n % 99] + keyB[n % 100]) & 0xFF) + ".";
    }
    bytes += "\r\n";
  }
  return bytes;
}

// Golden: every data file, a player's scores among them, is scrambled under these tables.
TEST_F(ScrambledFiles, KeysAreTheSameForEver) {
  const auto expectGolden = [] {
    const i16 firstA[] = {200, 65, 74, 122};
    const i16 firstB[] = {150, 211, 123, 210};
    EXPECT_TRUE(std::equal(std::begin(firstA), std::end(firstA), keyA));
    EXPECT_TRUE(std::equal(std::begin(firstB), std::end(firstB), keyB));
    EXPECT_EQ(keyA[98], 34);
    EXPECT_EQ(keyB[99], 137);
    EXPECT_EQ(std::accumulate(std::begin(keyA), std::end(keyA), 0), 11242);
    EXPECT_EQ(std::accumulate(std::begin(keyB), std::end(keyB), 0), 9722);
  };
  expectGolden();
  for (const i16 entry : keyA) EXPECT_TRUE(entry >= 1 && entry <= keyScale) << entry;
  for (const i16 entry : keyB) EXPECT_TRUE(entry >= 1 && entry <= keyScale) << entry;
  makeKeys(1, 1, 5);
  expectGolden();
  resetKeys();
  EXPECT_EQ(scrambleLine(reverseText("Glonks, 24\xE9")), "71.72.247.108.65.96.147.253.248.88.57.");
}

TEST_F(ScrambledFiles, TheFormatToTheByteAndBack) {
  std::string allCodes;
  for (int code = 0; code < 256; ++code) {
    if (code != '\r' && code != '\n') allCodes += static_cast<char>(code);
  }
  Lines lengths;  // 20,100 characters: past the point where both tables have come round
  for (int length = 0; length <= 200; ++length) {
    lengths.push_back(
        std::string(static_cast<std::size_t>(length), static_cast<char>(' ' + length)));
  }
  const struct {
    const char* name;
    Lines lines;
  } table[] = {
      {"empty file", {}},
      {"one empty line", {""}},
      {"reversed", {"abc"}},
      {"the same twice, empty lines between", {"ab", "", "", "ab", "ba"}},
      {"all codes", {allCodes, allCodes, allCodes}},
      {"many lengths", lengths},
      {"the longest that comes back", {std::string(8191, 'x'), "end"}},
  };
  for (const auto& row : table) {
    putBytes(plainPath, asFile(row.lines));
    putBytes(dataPath, "old");
    scrambleFile(plainPath, dataPath);
    EXPECT_EQ(bytesOf(dataPath), model(row.lines)) << row.name;
    putBytes("\\back", "old");
    unscrambleFile(dataPath, "\\back");
    EXPECT_EQ(bytesOf("\\back"), asFile(row.lines)) << row.name;
  }
  putBytes(plainPath, "ab\n\nc");  // other line ends, and none at the end
  scrambleFile(plainPath, dataPath);
  EXPECT_EQ(bytesOf(dataPath), model({"ab", "", "c"}));
}

TEST_F(ScrambledFiles, OddGroups) {
  const struct {
    const char* name;
    std::string odd;
    std::string proper;
  } table[] = {
      {"digits behind the last point are dropped", "71.72.12\r\n247.\r\n", "71.72.\r\n247.\r\n"},
      {"two points hold a 0 between them", "71..247.\r\n", "71.0.247.\r\n"},
  };
  for (const auto& row : table) {
    putBytes("\\odd", row.odd);
    putBytes("\\proper", row.proper);
    unscrambleFile("\\odd", "\\oddPlain");
    unscrambleFile("\\proper", "\\properPlain");
    EXPECT_EQ(bytesOf("\\oddPlain"), bytesOf("\\properPlain")) << row.name;
  }
}

TEST_F(ScrambledFiles, DamageIsToldWithFileAndLine) {
  const std::string table[] = {"256.", "999999999999999999999.", "7a.",  "-1.", " 7.", "1e1.",
                               "1,2.", std::string(32768, '1'),  "name."};
  for (const std::string& bad : table) {
    putBytes(dataPath, "71.\r\n\r\n" + bad + "\r\n");
    const std::string error = errorOf([] { unscrambleFile(dataPath, plainPath); });
    EXPECT_PRED2(holds, error, "\"" + dataPath + "\"") << bad.substr(0, 30);
    EXPECT_PRED2(holds, error, "line 3 ") << bad.substr(0, 30);
    expectTidy(1);
  }
  putBytes(dataPath, std::string(32767, '1'));  // digits without a point: as long as may be
  EXPECT_EQ(errorOf([] { unscrambleFile(dataPath, plainPath); }), "no error");
}

TEST_F(ScrambledFiles, AFailedScramblingKeepsTheOldFile) {
  putBytes(dataPath, "1.2.3.\r\n");
  putBytes(plainPath, "fine\r\n" + std::string(32768, 'x') + "\r\n");
  const std::string error = errorOf([] { scrambleFile(plainPath, dataPath); });
  EXPECT_PRED2(holds, error, "line 2 ");
  EXPECT_PRED2(holds, errorOf([] { scrambleFile("\\none", dataPath); }), "\"\\none\"");
  EXPECT_EQ(bytesOf(dataPath), "1.2.3.\r\n");
  expectTidy(1);
}

TEST_F(ScrambledFiles, ReaderLeavesNoTempFile) {
  putBytes(dataPath, model({"Ann,300", "Bob,200"}));
  {
    ScrambledReader reader(dataPath, 3);
    EXPECT_EQ(readField(3, "name"), "Ann");
    EXPECT_EQ(readLine(3), "300");
    reader.close();
    expectTidy(1);
  }
  const std::string error = errorOf([] {
    const ScrambledReader reader(dataPath, 3);
    for (;;) readField(3, "name");
  });
  EXPECT_PRED2(holds, error, "\"" + dataPath + "\"");
  EXPECT_FALSE(holds(error, tempPath)) << error;
  expectTidy(1);

  putBytes(dataPath, model({"Ann"}) + "300.\r\n");
  EXPECT_PRED2(holds, errorOf([] { ScrambledReader(dataPath, 3).close(); }), dataPath);
  expectTidy(1);
  EXPECT_PRED2(holds, errorOf([] { ScrambledReader("\\init\\1", 3).close(); }), "\\init\\1");
  expectTidy(1);
}

TEST_F(ScrambledFiles, WriterReplacesTheFileOnlyWhenClosed) {
  putBytes(dataPath, "1.2.3.\r\n");
  {
    ScrambledWriter writer(dataPath);
    writeLine(ScrambledWriter::channel, "given up");
  }
  EXPECT_EQ(bytesOf(dataPath), "1.2.3.\r\n");
  expectTidy(1);
  {
    ScrambledWriter writer(dataPath);
    writeLine(ScrambledWriter::channel, std::string(40'000, 'x'));
    EXPECT_PRED2(holds, errorOf([&] { writer.close(); }), "\"" + dataPath + "\"");
  }
  EXPECT_EQ(bytesOf(dataPath), "1.2.3.\r\n");
  expectTidy(1);

  ScrambledWriter writer(dataPath);
  writeLine(ScrambledWriter::channel, "Ann,300");
  writer.close();
  EXPECT_EQ(bytesOf(dataPath), model({"Ann,300"}));
  expectTidy(1);
}

}  // namespace
}  // namespace glonks
