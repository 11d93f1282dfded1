#include "tests/crash/saver.h"

#include "game/model/model.h"
#include "storage/files/scrambledfiles.h"
#include "storage/progress.h"
#include "storage/scores.h"
#include "storage/store.h"
#include "tests/fakes/random.h"

namespace glonks {

void prepareSaver() {
  fake::useGenerator();
  makeKeys(keySeed, keyDrawArgument, keyScale);
}

void startAndSaveAll() {
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

}  // namespace glonks
