#include "storage/scrambledfiles.h"

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
    putBytes(dataPath, "1.2.3.\r\n");
  }
  // No channel open, and no file left that nobody has asked for.
  static bool isTidy() {
    for (const i16 channel : {3, 4, 24, 25}) {
      if (isChannelOpen(channel)) return false;
    }
    return !exists(tempPath) && !exists(dataPath + ".new");
  }
};

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
  makeKeys(1, 1, 5);  // not the first call, so it does nothing
  EXPECT_EQ(std::vector(keyA, keyA + 4), (std::vector<i16>{200, 65, 74, 122}));
  EXPECT_EQ(std::vector(keyB, keyB + 4), (std::vector<i16>{150, 211, 123, 210}));
  EXPECT_EQ(std::accumulate(std::begin(keyA), std::end(keyA), 0), 11242);
  EXPECT_EQ(std::accumulate(std::begin(keyB), std::end(keyB), 0), 9722);
  resetKeys();
  EXPECT_EQ(scrambleLine(reverseText("Glonks, 24\xE9")), "71.72.247.108.65.96.147.253.248.88.57.");
}

TEST_F(ScrambledFiles, TheFormatToTheByteAndBack) {
  std::string allCodes;
  for (int code = 0; code < 256; ++code) {
    if (code != '\r' && code != '\n') allCodes += static_cast<char>(code);
  }
  // 40 lines of all codes go past the 9,900 characters after which both tables begin together
  // again; 8,191 are the most that fit into a line when scrambled.
  const Lines files[] = {
      {}, {""}, {"ab", "", "", "ab"}, Lines(40, allCodes), {std::string(8191, 'x'), "end"}};
  for (const Lines& lines : files) {
    std::string plain;
    for (const std::string& line : lines) plain += line + "\r\n";
    putBytes(plainPath, plain);
    scrambleFile(plainPath, dataPath);
    EXPECT_EQ(bytesOf(dataPath), model(lines));
    unscrambleFile(dataPath, "\\back");
    EXPECT_EQ(bytesOf("\\back"), plain);
  }
}

TEST_F(ScrambledFiles, OddGroupsAndDamage) {
  putBytes(dataPath, "71..12\r\n247.\r\n" + std::string(32767, '1'));
  unscrambleFile(dataPath, plainPath);
  putBytes(dataPath, "71.0.\r\n247.\r\n\r\n");
  unscrambleFile(dataPath, "\\proper");
  EXPECT_EQ(bytesOf(plainPath), bytesOf("\\proper"));
  for (const std::string& bad : {std::string("256."), std::string("4294967297."),
                                 std::string("7a."), std::string("-1."), std::string(32768, '1')}) {
    putBytes(dataPath, "71.\r\n\r\n" + bad + "\r\n");
    const std::string error = errorOf([] { unscrambleFile(dataPath, plainPath); });
    EXPECT_PRED2(holds, error, "\"" + dataPath + "\" is damaged: line 3 ") << bad.substr(0, 30);
    EXPECT_TRUE(isTidy());
  }
}

TEST_F(ScrambledFiles, AFailedScramblingKeepsTheOldFile) {
  putBytes(plainPath, "fine\r\n" + std::string(32768, 'x') + "\r\n");
  EXPECT_PRED2(holds, errorOf([] { scrambleFile(plainPath, dataPath); }), "line 2 ");
  EXPECT_PRED2(holds, errorOf([] { scrambleFile("\\none", dataPath); }), "\"\\none\"");
  EXPECT_EQ(bytesOf(dataPath), "1.2.3.\r\n");
  EXPECT_TRUE(isTidy());
}

TEST_F(ScrambledFiles, ReaderLeavesNoTempFile) {
  putBytes(dataPath, model({"Ann,300"}));
  ScrambledReader reader(dataPath, 3);
  EXPECT_EQ(readLine(3), "Ann,300");
  reader.close();
  EXPECT_TRUE(isTidy());
  const auto readOn = [] {
    const ScrambledReader failing(dataPath, 3);
    for (;;) readField(3, "name");
  };
  EXPECT_PRED2(holds, errorOf(readOn), "\"" + dataPath + "\" is too short");
  EXPECT_TRUE(isTidy());
  putBytes(dataPath, model({"Ann"}) + "300.\r\n");
  EXPECT_PRED2(holds, errorOf(readOn), "\"" + dataPath + "\" is damaged: line 2 ");
  EXPECT_TRUE(isTidy());
}

TEST_F(ScrambledFiles, WriterReplacesTheFileOnlyWhenClosed) {
  for (const std::size_t length : {7U, 40'000U}) {  // given up, and too long for a line
    ScrambledWriter writer(dataPath);
    writeLine(ScrambledWriter::channel, std::string(length, 'x'));
    if (length > 7) EXPECT_PRED2(holds, errorOf([&] { writer.close(); }), "\"" + dataPath + "\"");
  }
  EXPECT_EQ(bytesOf(dataPath), "1.2.3.\r\n");
  EXPECT_TRUE(isTidy());
  ScrambledWriter writer(dataPath);
  writeLine(ScrambledWriter::channel, "Ann,300");
  writer.close();
  EXPECT_EQ(bytesOf(dataPath), model({"Ann,300"}));
  EXPECT_TRUE(isTidy());
}

}  // namespace
}  // namespace glonks
