#include <gtest/gtest.h>

#include <set>
#include <vector>

#include "game/model/model.h"
#include "storage/playerfiles.h"
#include "storage/progress.h"
#include "storage/scores.h"
#include "storage/store.h"
#include "tests/crash/saver.h"
#include "tests/fakes/random.h"
#include "tests/tempfolder.h"

namespace glonks {

void startAndSaveAll() {
  fake::useGenerator();
  makeKeys(keySeed, keyDrawArgument, keyScale);
  readScores();
  readStore();
  readOpenLevels();
  highScores[3] = {"Newcomer", 14000};
  bank = 1234;
  // So many levels that their file takes more than one write.
  for (i32 level = 0; level < 200; ++level) addOpenLevel({"Reward", 3102});
  writeScores();
  writeStore();
  writeOpenLevels();
}

namespace {

using Texts = std::vector<std::string>;
using CrashTest = TempFolder;

const Texts paths = {pathOf(scoresFile), pathOf(storeFile), pathOf(levelsFile)};

Texts files() {
  Texts bytes;
  for (const std::string& path : paths) bytes.push_back(bytesOf(path));
  return bytes;
}

// Killed at every step of a start and the saves, each file is the old one or the new one, and
// neither what is left lying nor the next start minds.
TEST_F(CrashTest, EveryFileIsTheOldOrTheNewOne) {
  const Texts old = files();
  finishesWithin(1 << 20);
  const Texts all = files();
  const std::set<Texts> stages = {old, {all[0], old[1], old[2]}, {all[0], all[1], old[2]}, all};
  std::set<Texts> seen;
  for (i32 kills = 0, finished = 0; finished == 0; ++kills) {
    for (std::size_t i = 0; i < paths.size(); ++i) putBytes(paths[i], old[i]);
    finished = finishesWithin(kills) ? 1 : 0;
    ASSERT_EQ(stages.count(*seen.insert(files()).first), 1U) << kills;
    if (kills % 16 != 0) continue;
    EXPECT_TRUE(finishesWithin(1 << 20) && !exists(tempPath)) << kills;
    for (const std::string& path : paths) EXPECT_TRUE(exists(path) && !exists(path + ".new"));
  }
  EXPECT_EQ(seen, stages);
}

}  // namespace
}  // namespace glonks
