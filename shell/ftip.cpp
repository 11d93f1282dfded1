#include "shell/ftip.h"

#include <string>
#include <vector>

#include "base/clock.h"
#include "base/errors.h"
#include "base/random.h"
#include "shell/fmain.h"
#include "shell/menucontrols.h"
#include "shell/saving.h"
#include "shell/toolkit/toolkit.h"
#include "storage/files/channels.h"
#include "storage/files/datafiles.h"
#include "storage/files/scrambledfiles.h"
#include "storage/files/textchannels.h"

namespace glonks {
namespace {

constexpr i32 tipFont = 195;  // twips
const std::string greeting = "Welcome to Glonks!  Have a good game.";

void layOut() {
  setInside(fTip, "", 4365, 2490, fTip_background, ":/forms/tip.png");
  fTip.name = "Tip";
  setWords(fTip_background, "Did you know?", "Two Glonks look over the tip.");
  setBounds(tip, {140, 640, 4095, 1695, 0});
  setWords(tip, "Did you know?");
  tip.fontHeight = tipFont;
  fTip.controls = {&fTip_background, &tip};
}

// The lines of the file of tips, none if it can't be read: a game needs no tip.
std::vector<std::string> readTips() {
  std::vector<std::string> tips;
  try {
    ScrambledReader file(tipsPath, tipChannel);
    rtcRandomize(clockSeed());
    while (!endOfFile(tipChannel)) tips.push_back(readLine(tipChannel));
    file.close();
  } catch (const RuntimeError&) {
    return {};
  }
  return tips;
}

}  // namespace

std::string pickTip() {
  const std::vector<std::string> tips = readTips();
  const auto picked = static_cast<std::size_t>(drawBelow(static_cast<i32>(tips.size())));
  return tips.empty() ? greeting : tips[picked];
}

void fTip_Form_Load() {
  makeKeys(keySeed, keyDrawArgument, keyScale);
  layOut();
  tip.text = pickTip();
  fMain_Form_Load();
  showForm(fMain);
  tellOfNewFiles();
}

}  // namespace glonks
