#include "storage/log.h"

#include "storage/textchannels.h"
#include "tests/tempfolder.h"

namespace glonks {
namespace {

class Log : public TempFolder {
 protected:
  Log() { logEnabled = True; }
  ~Log() override { abandonChannel(logFileNo); }
};

TEST_F(Log, ARunToTheByte) {
  putBytes("\\log.txt", std::string(500, 'x'));  // of the run before
  openLog();
  logStep("initDX");
  std::string text = "a plain entry";
  writeLog(text, False);
  EXPECT_EQ(text, "04:05:06 :: a plain entry");
  std::string empty;
  writeLog(empty, True);
  const std::string opened =
      "LOG OPENED ON 01/02/03 AT 04:05:06\r\n04:05:06 :: initDX   \r\n"
      "04:05:06 :: a plain entry\r\n   \r\n";
  EXPECT_EQ(bytesOf("\\log.txt"), opened) << "a log that breaks off has to tell the last step";
  closeLog();
  EXPECT_EQ(bytesOf("\\log.txt"), opened + "LOG CLOSED ON 01/02/03 AT 04:05:06\r\n");
}

TEST_F(Log, TheProgramRunsOnWithoutALog) {
  std::filesystem::create_directory(folder / "log.txt");
  for (const bool fullDisk : {false, true}) {
    if (fullDisk) {
      std::filesystem::remove(folder / "log.txt");
      std::filesystem::create_symlink("/dev/full", folder / "log.txt");
    }
    logEnabled = True;
    openLog();
    logStep("a step");
    EXPECT_EQ(logEnabled, False);
    EXPECT_FALSE(isChannelOpen(logFileNo));
  }
}

}  // namespace
}  // namespace glonks
