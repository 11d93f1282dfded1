#include "storage/folders.h"

#include <algorithm>
#include <set>

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

using Names = std::set<std::string>;

class Folders : public TempFolder {
 protected:
  Folders() {
    makeKeys(keySeed, keyDrawArgument, keyScale);
    fs::remove_all(users);
    fs::create_directory(users);
  }
  ~Folders() override { fs::remove_all(users); }
  static Names filesIn(const fs::path& where) {
    Names names;
    for (const auto& entry : fs::recursive_directory_iterator(where)) {
      if (!entry.is_directory()) names.insert(fs::relative(entry, where).string());
    }
    return names;
  }
  // What a run reads and writes of the player's.
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
  const struct {
    fs::path program;
    decltype(&never) canWrite;
    fs::path game, players;
  } cases[] = {{folder, always, folder, folder},
               {folder, never, folder, users},
               {folder / "games", never, folder / "share/games/glonks", users},
               {folder / "games", always, folder / "share/games/glonks", users}};
  for (const auto& [program, canWrite, game, players] : cases) {
    setFolders(program, users, canWrite);
    EXPECT_EQ(programFolder(), game);
    EXPECT_EQ(playersFolder(), players);
    for (const char* path :
         {"init/6095", "init/6702.damaged", "init/6537.damaged2", "temp", "log.txt"}) {
      std::string gamePath = std::string("\\") + path;
      std::replace(gamePath.begin(), gamePath.end(), '/', '\\');
      EXPECT_EQ(nativePath(gamePath), players / path);
    }
    EXPECT_EQ(nativePath("\\init\\1182"), game / "init/1182");
    EXPECT_EQ(nativePath("\\first\\6095"), game / "first/6095");
  }
}

TEST_F(Folders, PlayersOwnFolderBeginsWithTheFirstContentsAndTakesAllThatIsWritten) {
  setFolders(folder, users, never);
  fs::copy(gameFolder / "first", users / "init.new");  // a start that broke off
  const auto before = filesIn(folder);
  makeFirstFiles();
  for (const char* name : {"6095", "6702", "6537"}) {
    EXPECT_EQ(bytesOf(std::string("\\init\\") + name), bytesOf(std::string("\\first\\") + name));
  }
  play();
  EXPECT_EQ(takeNews(), "");
  makeFirstFiles();  // the second start
  readScores();
  EXPECT_EQ(highScores[0].points, 123456);
  putBytes("\\init\\6702", "nothing of this can be read");
  play();
  EXPECT_PRED2(holds, takeNews(), "6702.damaged");
  EXPECT_EQ(filesIn(users),
            (Names{"init/6095", "init/6537", "init/6702", "init/6702.damaged", "log.txt"}));
  EXPECT_EQ(filesIn(folder), before);
  setProgramFolder(folder);
  EXPECT_EQ(bytesOf("\\init\\6095"), bytesOf("\\first\\6095"));
}

TEST_F(Folders, FirstFilesAreMadeAllOrNone) {
  setFolders(folder, users, never);
  fs::remove(folder / "first");
  fs::create_directory(folder / "first");
  fs::copy(gameFolder / "first/6095", folder / "first");
  EXPECT_PRED2(holds, errorOf(makeFirstFiles), (users / "init").string());
  EXPECT_FALSE(fs::exists(users / "init"));
}

}  // namespace
}  // namespace glonks
