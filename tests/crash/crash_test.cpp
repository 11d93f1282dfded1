#include <gtest/gtest.h>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <functional>
#include <vector>

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

using Texts = std::vector<std::string>;

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

void loadAll() {
  readScores();
  readStore();
  readOpenLevels();
}

void changeAndSaveAll() {
  highScores[3] = {"Newcomer", 14000};
  bank = 1234;
  addOpenLevel({"Reward", 3102});
  writeScores();
  writeStore();
  writeOpenLevels();
}

class CrashTest : public TempFolder {
 protected:
  static Texts files() {
    Texts bytes;
    for (const std::string& path : paths) bytes.push_back(bytesOf(path));
    return bytes;
  }
  static void put(const Texts& bytes) {
    for (std::size_t i = 0; i < paths.size(); ++i) {
      std::filesystem::remove(nativePath(paths[i]));
      putBytes(paths[i], bytes[i]);
    }
  }
  inline static const Texts paths = {pathOf(scoresFile), pathOf(storeFile), pathOf(levelsFile)};
};

// Killed at every step of the saves, each file is the old one or the new one, and neither what is
// left lying nor the next start minds.
TEST_F(CrashTest, EveryFileIsTheOldOrTheNewOne) {
  fake::useGenerator();
  makeKeys(keySeed, keyDrawArgument, keyScale);
  std::string levels;  // many, so that their file takes more than one write
  for (int level = 0; level < 200; ++level) levels += "A level of Arcade\r\n 3101 \r\n";
  putBytes("\\plain", levels);
  scrambleFile("\\plain", pathOf(levelsFile));
  loadAll();
  const Texts before = files();
  finishesWithin(1 << 20, changeAndSaveAll);
  const Texts after = files();
  int old[3] = {};
  int kills = 0;
  for (bool finished = false; !finished; ++kills) {
    put(before);
    finished = finishesWithin(kills, changeAndSaveAll);
    const Texts left = files();
    for (std::size_t i = 0; i < left.size(); ++i) {
      ASSERT_TRUE(left[i] == before[i] || left[i] == after[i]) << paths[i] << kills;
      if (left[i] == before[i]) ++old[i];
    }
    loadAll();
    EXPECT_EQ(files(), left) << "not taken for damaged";
    if (finished || kills % 8 != 0) continue;
    EXPECT_TRUE(finishesWithin(1 << 20, changeAndSaveAll) && !exists(tempPath));
    for (const std::string& path : paths) EXPECT_TRUE(exists(path) && !exists(path + ".new"));
  }
  EXPECT_TRUE(0 < old[0] && old[0] < old[1] && old[1] < old[2] && old[2] < kills - 1);
  EXPECT_GT(kills, 200);
}

}  // namespace
}  // namespace glonks
