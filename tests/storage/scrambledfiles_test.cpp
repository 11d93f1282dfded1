#include "storage/files/scrambledfiles.h"

#include "storage/files/channels.h"
#include "storage/files/textchannels.h"
#include "tests/tempfolder.h"

namespace glonks {
namespace {

const std::string dataPath = "\\init\\6095";

class ScrambledFiles : public TempFolder {
 protected:
  ScrambledFiles() { makeKeys(keySeed, keyDrawArgument, keyScale); }
};

// Golden: every data file, a player's scores among them, is scrambled under these tables for ever.
TEST_F(ScrambledFiles, TheFormatToTheByteAndBack) {
  makeKeys(1, 1, 5);  // not the first call, so it does nothing
  // 40 lines of all codes go past the 9,900 characters after which both tables begin together
  // again; 8,191 are the most that fit into a line when scrambled.
  std::string allLines;
  for (int i = 0; i < 40 * 256; ++i) {
    if (i % 256 != '\r' && i % 256 != '\n') allLines += static_cast<char>(i);
    if (i % 256 == 255) allLines += "\r\n";
  }
  const std::pair<std::string, std::string> files[] = {
      {"", ""},
      {"ab\r\n\r\n\r\nab\r\n", "192.117.\r\n\r\n\r\n39.173.\r\n"},
      {allLines + "end\r\n", "182.58.\r\n118.238.170.\r\n"},
      {std::string(8191, 'x') + "\r\nend\r\n", "16.106.\r\n142.93.241.\r\n"}};
  for (const auto& [plain, end] : files) {
    putScrambled(dataPath, plain);
    const std::string bytes = bytesOf(dataPath);
    EXPECT_EQ(bytes.substr(bytes.size() - end.size()), end);
    unscrambleFile(dataPath, "\\back");
    EXPECT_EQ(bytesOf("\\back"), plain);
  }
}

TEST_F(ScrambledFiles, DamageIsToldAndLeavesNothingLying) {
  const auto readOn = [] {
    const ScrambledReader reader(dataPath, 3);
    for (;;) readField(3, "name");
  };
  // An empty group counts as 0, one without a full stop as none.
  putBytes(dataPath, "71..12\r\n247.\r\n" + std::string(32767, '1'));
  unscrambleFile(dataPath, "\\plain");
  EXPECT_EQ(bytesOf("\\plain"), "\xEC\xE9\r\n2\r\n\r\n");
  EXPECT_PRED2(holds, errorOf(readOn), "\"" + dataPath + "\" is too short");
  for (const char* bad : {"256.", "4294967297.", "7a.", "-1.", "1.x"}) {
    putBytes(dataPath, std::string("71.\r\n\r\n") + bad);
    EXPECT_PRED2(holds, errorOf(readOn), dataPath + "\" is damaged: line 3 ") << bad;
  }
  // What is given up or too long replaces nothing.
  putBytes(dataPath, "old");
  errorOf([] { ScrambledWriter writer(dataPath); });
  const std::string error = errorOf([] {
    ScrambledWriter writer(dataPath);
    writeLine(playersChannel, std::string(20000, 'x'));
    writer.close();
  });
  EXPECT_PRED2(holds, error, "\"" + dataPath + "\" is damaged: line 1 ");
  EXPECT_EQ(bytesOf(dataPath), "old");
  EXPECT_FALSE(exists(tempPath) || exists(dataPath + ".new"));
}

}  // namespace
}  // namespace glonks
