#include "storage/files/scrambledfiles.h"

#include <functional>
#include <vector>

#include "storage/files/textchannels.h"
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
  }
  // Runs an action that fails or is given up, and looks whether it leaves files lying.
  static std::string errorOfTidy(const std::function<void()>& action) {
    const std::string error = errorOf(action);
    EXPECT_FALSE(exists(tempPath) || exists(dataPath + ".new")) << error;
    return error;
  }
};

// Golden: every data file, a player's scores among them, is scrambled under these tables for ever.
TEST_F(ScrambledFiles, TheFormatToTheByteAndBack) {
  makeKeys(1, 1, 5);  // not the first call, so it does nothing
  std::string allCodes;
  for (int code = 0; code < 256; ++code) {
    if (code != '\r' && code != '\n') allCodes += static_cast<char>(code);
  }
  // 40 lines of all codes go past the 9,900 characters after which both tables begin together
  // again; 8,191 are the most that fit into a line when scrambled.
  Lines allLines(40, allCodes);
  allLines.emplace_back("end");
  const std::pair<Lines, std::string> files[] = {
      {{}, ""},
      {{"ab", "", "", "ab"}, "192.117.\r\n\r\n\r\n39.173.\r\n"},
      {allLines, "182.58.\r\n118.238.170.\r\n"},
      {{std::string(8191, 'x'), "end"}, "16.106.\r\n142.93.241.\r\n"}};
  for (const auto& [lines, end] : files) {
    std::string plain;
    for (const std::string& line : lines) plain += line + "\r\n";
    putBytes("\\plain", plain);
    scrambleFile("\\plain", dataPath);
    const std::string bytes = bytesOf(dataPath);
    EXPECT_EQ(bytes.substr(bytes.size() - std::min(bytes.size(), end.size())), end);
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
  putBytes(dataPath, "71.0.\r\n247.\r\n\r\n");
  unscrambleFile(dataPath, "\\proper");
  EXPECT_EQ(bytesOf("\\plain"), bytesOf("\\proper"));
  EXPECT_PRED2(holds, errorOfTidy(readOn), "\"" + dataPath + "\" is too short");
  const Lines damaged = {"256.", "4294967297.", "7a.", "-1.", "1.x", std::string(32768, '1')};
  for (const std::string& bad : damaged) {
    putBytes(dataPath, "71.\r\n\r\n" + bad + "\r\n");
    const std::string error = errorOfTidy(readOn);
    EXPECT_PRED2(holds, error, dataPath + "\" is damaged: line 3 ") << bad.substr(0, 30);
  }
}

TEST_F(ScrambledFiles, AFileIsReplacedOnlyByACompleteOne) {
  const auto write = [](const std::string& line, bool close) {
    ScrambledWriter writer(dataPath);
    writeLine(ScrambledWriter::channel, "Ann,300");
    writeLine(ScrambledWriter::channel, line);
    if (close) writer.close();
  };
  write("Bob,200", true);
  errorOfTidy([&] { write("given up", false); });
  const std::string error = errorOfTidy([&] { write(std::string(32768, 'x'), true); });
  EXPECT_PRED2(holds, error, "\"" + dataPath + "\" is damaged: line 2 ");
  ScrambledReader reader(dataPath, 3);
  EXPECT_EQ(readLine(3), "Ann,300");
  EXPECT_EQ(readLine(3), "Bob,200");
  reader.close();
  EXPECT_FALSE(exists(tempPath));
}

}  // namespace
}  // namespace glonks
