#include "shell/fmain.h"

#include "game/clock.h"
#include "game/model.h"
#include "game/random.h"
#include "shell/menucontrols.h"
#include "shell/modes.h"
#include "shell/playbutton.h"
#include "shell/songlist.h"
#include "shell/themes.h"
#include "shell/toolkit/toolkit.h"
#include "storage/log.h"
#include "storage/scores.h"
#include "storage/store.h"

namespace glonks {
namespace {

constexpr i32 formWidth = 3615;
constexpr i32 formHeight = 5175;
constexpr i16 choicePage = 0;

void place(Control& control, i32 left, i32 top, i32 width, i32 height) {
  control.left = left;
  control.top = top;
  control.width = width;
  control.height = height;
}

void layOutChoicePage() {
  place(frame[choicePage], 0, 0, formWidth, formHeight);
  place(Image7, 0, 120, formWidth, 5070);
  place(tMode, 240, 600, 3135, 315);
  place(tModeDesc, 240, 1080, 3135, 855);
  place(tLevels, 240, 2520, 3135, 1785);
  place(main_BtnRun, 2280, 4560, 1095, 495);
  tMode.tabIndex = 4;
  tLevels.tabIndex = 5;
  Image7.picture = ":/forms/page0.png";
  main_BtnRun.hint = "Play";
  tMode.click = tMode_Click;
  main_BtnRun.click = main_BtnRun_Click;
  frame[choicePage].controls = {&Image7, &tMode, &tModeDesc, &tLevels, &main_BtnRun};
}

void layOut() {
  fMain.caption = "Glonks";
  fMain.width = formWidth;
  fMain.height = formHeight;
  fMain.menus = {{"Game", {{"New", mNew_Click}, {"Quit", mExit_Click}}}};
  fMain.unload = fMain_Form_Unload;
  layOutChoicePage();
  fMain.controls.assign({&frame[choicePage]});
}

void setPage(Frame& page, Flag shown) {
  page.visible = shown;
  page.enabled = shown;
}

}  // namespace

void fMain_Form_Load() {
  logEnabled = True;
  openLog();
  rtcRandomize(clockSeed());
  layOut();
  for (Frame& page : frame) setPage(page, False);
  boot();
}

void boot() {
  loadScores();
  loadStore();
  popModes();
  popThemes();
  popSongs();
  setPage(frame[choicePage], True);
  songIndex = -1;
}

void showPage(i16 page) {
  for (Frame& other : frame) setPage(other, False);
  setPage(frame[static_cast<std::size_t>(page)], True);
}

void fMain_Form_Unload() {
  saveScores();
  saveStore();
  closeLog();
  endProgram();
}

void mNew_Click() { showPage(choicePage); }

void mExit_Click() { endProgram(); }

}  // namespace glonks
