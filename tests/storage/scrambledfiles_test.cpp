#include "storage/scrambledfiles.h"

#include <cmath>
#include <vector>

#include "game/randomgenerator.h"
#include "storage/textchannels.h"
#include "tests/tempfolder.h"

namespace glonks {
namespace {

using Lines = std::vector<std::string>;

const std::string dataPath = "\\init\\6095";

class ScrambledFiles : public TempFolder {
 protected:
  ScrambledFiles() {
    ownDataFolders();
    makeKeys(keySeed, keyDrawArgument, keyScale);
    putBytes(dataPath, "1.2.3.\r\n");
  }
  // No channel open, and no file left that nobody has asked for.
  static bool isTidy() {
    return !isChannelOpen(3) && !isChannelOpen(4) && !isChannelOpen(24) && !isChannelOpen(25) &&
           !exists(tempPath) && !exists(dataPath + ".new");
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
  EXPECT_EQ((std::vector{keyA[0], keyA[98], keyB[0], keyB[99]}),
            (std::vector<i16>{200, 34, 150, 137}));
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
    putBytes("\\plain", plain);
    scrambleFile("\\plain", dataPath);
    EXPECT_EQ(bytesOf(dataPath), model(lines));
    unscrambleFile(dataPath, "\\back");
    EXPECT_EQ(bytesOf("\\back"), plain);
  }
}

TEST_F(ScrambledFiles, OddGroupsAndDamage) {
  putBytes(dataPath, "71..12\r\n247.\r\n" + std::string(32767, '1'));
  unscrambleFile(dataPath, "\\plain");
  putBytes(dataPath, "71.0.\r\n247.\r\n\r\n");
  unscrambleFile(dataPath, "\\proper");
  EXPECT_EQ(bytesOf("\\plain"), bytesOf("\\proper"));
  for (const std::string& bad : {std::string("256."), std::string("4294967297."),
                                 std::string("7a."), std::string("-1."), std::string(32768, '1')}) {
    putBytes(dataPath, "71.\r\n\r\n" + bad + "\r\n");
    const std::string error = errorOf([] { unscrambleFile(dataPath, "\\plain"); });
    EXPECT_PRED2(holds, error, "\"" + dataPath + "\" is damaged: line 3 ") << bad.substr(0, 30);
  }
}

TEST_F(ScrambledFiles, ReaderAndWriterLeaveNothingLying) {
  { const ScrambledWriter givenUp(dataPath); }
  const auto writeLongLine = [] {
    ScrambledWriter writer(dataPath);
    writeLine(ScrambledWriter::channel, "fine");
    writeLine(ScrambledWriter::channel, std::string(32768, 'x'));
    writer.close();
  };
  EXPECT_PRED2(holds, errorOf(writeLongLine), "\"" + dataPath + "\" is damaged: line 2 ");
  EXPECT_EQ(bytesOf(dataPath), "1.2.3.\r\n");
  EXPECT_TRUE(isTidy());
  ScrambledWriter writer(dataPath);
  writeLine(ScrambledWriter::channel, "Ann,300");
  writer.close();
  EXPECT_EQ(bytesOf(dataPath), model({"Ann,300"}));
  EXPECT_TRUE(isTidy());

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

// The key tables, and with them all data files, hang on these numbers: they never change. They are
// the whole numbers of 24 bits; a finer one would show as a fraction.
TEST(Random, GivesTheSameNumbersForEver) {
  RandomGenerator generator;
  for (const double number : {11095902, 5846237, 16354692}) {
    generator.randomize(7);  // mixed into the state that it finds, so each time another sequence
    EXPECT_EQ(std::ldexp(generator.next(), 24), number);
  }
}

}  // namespace
}  // namespace glonks
