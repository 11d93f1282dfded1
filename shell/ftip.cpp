#include "shell/ftip.h"

#include "game/clock.h"
#include "game/random.h"
#include "shell/fmain.h"
#include "shell/toolkit/toolkit.h"
#include "storage/scrambledfiles.h"

namespace glonks {

void fTip_Form_Load() {
  makeKeys(keySeed, keyDrawArgument, keyScale);
  rtcRandomize(clockSeed());
  fMain_Form_Load();
  showForm(fMain);
}

}  // namespace glonks
