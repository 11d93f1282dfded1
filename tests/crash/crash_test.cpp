#include <gtest/gtest.h>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <functional>

#include "game/model/model.h"
#include "storage/files/scrambledfiles.h"
#include "storage/playerfiles.h"
#include "storage/progress.h"
#include "storage/scores.h"
#include "storage/store.h"
#include "tests/fakes/random.h"
#include "tests/tempfolder.h"

namespace glonks {
namespace {

// Runs `action` in a process of its own and kills that at its n-th stop before or after a system
// call. True if it has come to its end by itself.
bool finishesWithin(int stops, const std::function<void()>& action) {
  const pid_t child = fork();
  if (child == 0) {
    ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
    raise(SIGSTOP);
    action();
    _exit(0);
  }
  int status = 0;
  waitpid(child, &status, 0);
  while (WIFSTOPPED(status) && stops-- > 0) {
    ptrace(PTRACE_SYSCALL, child, nullptr, nullptr);
    waitpid(child, &status, 0);
  }
  if (WIFEXITED(status)) return true;
  kill(child, SIGKILL);
  waitpid(child, &status, 0);
  return false;
}

struct Save {
  const PlayersFile& file;
  void (*change)();
  void (*save)();
  void (*load)();
};

const Save saves[] = {
    {scoresFile,
     [] {
       highScores[3] = {"Newcomer", 14000};
     },
     writeScores, readScores},
    {storeFile, [] { bank = 1234; }, writeStore, readStore},
    {levelsFile, [] {},
     [] {
       addOpenLevel({"Reward", 3102});
     },
     [] { readOpenLevels(); }},
};

using CrashTest = TempFolder;

// Killed at every step of a save, the file is the old one or the new one, and neither what is left
// lying nor the next start minds.
TEST_F(CrashTest, EveryFileIsTheOldOrTheNewOne) {
  fake::useGenerator();
  makeKeys(keySeed, keyDrawArgument, keyScale);
  std::string levels;  // many, so that their file takes more than one write
  for (int level = 0; level < 400; ++level) levels += "A level of Arcade\r\n 3101 \r\n";
  putBytes("\\plain", levels);
  scrambleFile("\\plain", pathOf(levelsFile));
  readScores();
  readStore();
  int allKills = 0;
  for (const Save& save : saves) {
    const std::string path = pathOf(save.file);
    const std::string before = bytesOf(path);
    save.change();
    finishesWithin(1 << 20, save.save);
    const std::string after = bytesOf(path);
    ASSERT_NE(before, after);
    int kills = 0;
    int old = 0;
    for (bool finished = false; !finished; ++kills) {
      std::filesystem::remove(nativePath(path));
      putBytes(path, before);
      finished = finishesWithin(kills, save.save);
      const std::string left = bytesOf(path);
      ASSERT_TRUE(left == before || left == after) << path << " after stop " << kills;
      if (left == before) ++old;
      save.load();
      EXPECT_EQ(bytesOf(path), left) << "not taken for damaged";
      if (!finished && kills % 8 == 0) {
        EXPECT_TRUE(finishesWithin(1 << 20, save.save));
        EXPECT_TRUE(exists(path) && !exists(path + ".new") && !exists(tempPath));
      }
      save.change();
    }
    std::cout << path << ": killed " << kills - 1 << " times, " << old << " times the old file\n";
    EXPECT_TRUE(old > 0 && old < kills - 1);
    allKills += kills - 1;
  }
  EXPECT_GT(allKills, 200);
}

}  // namespace
}  // namespace glonks
