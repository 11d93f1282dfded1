#include "storage/folders.h"

#include <set>
#include <tuple>

#include "storage/files/log.h"
#include "storage/files/scrambledfiles.h"
#include "storage/playerfiles.h"
#include "storage/progress.h"
#include "storage/scores.h"
#include "storage/store.h"
#include "tests/tempfolder.h"

namespace glonks {
namespace {

namespace fs = std::filesystem;

bool never(const fs::path& /*folder*/) { return false; }
bool always(const fs::path& /*folder*/) { return true; }

class Folders : public TempFolder {
 protected:
  Folders() {
    makeKeys(keySeed, keyDrawArgument, keyScale);
    takeNews();
    fs::remove_all(users);
    fs::create_directory(users);
  }
  ~Folders() override { fs::remove_all(users); }
  static std::set<fs::path> filesIn(const fs::path& where) {
    std::set<fs::path> files;
    for (const auto& entry : fs::recursive_directory_iterator(where)) {
      if (!entry.is_directory()) files.insert(entry.path().lexically_relative(where));
    }
    return files;
  }
  // A run that reads and writes what the player owns.
  static void play() {
    logEnabled = True;
    openLog();
    readScores();
    readStore();
    readOpenLevels();
    insertScore(0, 123456);
    writeScores();
    closeLog();
  }
  const fs::path users = folder.string() + ".users";
};

TEST_F(Folders, OnlyAPortableFolderThatCanBeWrittenHoldsWhatThePlayerOwns) {
  const fs::path installed = folder / "share/games/glonks";
  const std::tuple<fs::path, decltype(&never), fs::path, fs::path> cases[] = {
      {folder, always, folder, folder},
      {folder, never, folder, users},
      {folder / "games", never, installed, users},
      {folder / "games", always, installed, users}};
  for (const auto& [program, canWrite, game, players] : cases) {
    setFolders(program, users, canWrite);
    EXPECT_TRUE(programFolder() == game && playersFolder() == players);
    EXPECT_EQ(nativePath("\\init\\6095"), players / "init/6095");
    EXPECT_EQ(nativePath("\\init\\6702.damaged2"), players / "init/6702.damaged2");
    EXPECT_EQ(nativePath("\\init\\1182"), game / "init/1182");
    EXPECT_EQ(nativePath("\\first\\6095"), game / "first/6095");
  }
}

TEST_F(Folders, PlayersOwnFolderBeginsWithTheFirstContentsAndTakesAllThatIsWritten) {
  setFolders(folder, users, never);
  fs::copy(gameFolder / "first", users / "init.new");  // a start that broke off
  const auto before = filesIn(folder);
  makeFirstFiles();
  EXPECT_EQ(bytesOf("\\init\\6702"), bytesOf("\\first\\6702"));
  EXPECT_EQ(nativePath(tempPath), users / "temp");
  play();
  EXPECT_EQ(takeNews(), "");
  makeFirstFiles();  // the second start
  readScores();
  EXPECT_EQ(highScores[0].points, 123456);
  putBytes("\\init\\6702", "nothing of this can be read");
  play();
  EXPECT_EQ(filesIn(users), (std::set<fs::path>{"init/6095", "init/6537", "init/6702",
                                                "init/6702.damaged", "log.txt"}));
  EXPECT_EQ(filesIn(folder), before);
  setProgramFolder(folder);
  EXPECT_EQ(bytesOf("\\init\\6095"), bytesOf("\\first\\6095"));
}

TEST_F(Folders, FirstFilesAreMadeAllOrNone) {
  setFolders(folder, users, never);
  fs::remove_all(folder / "first");
  fs::create_directory(folder / "first");
  fs::copy(gameFolder / "first/6095", folder / "first");
  EXPECT_PRED2(holds, errorOf(makeFirstFiles), (users / "init").string());
  EXPECT_FALSE(fs::exists(users / "init"));
}

}  // namespace
}  // namespace glonks
