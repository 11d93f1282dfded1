#include "shell/fmain.h"

#include <string>

#include "base/clock.h"
#include "base/random.h"
#include "game/model/model.h"
#include "shell/backgroundspage.h"
#include "shell/bandspage.h"
#include "shell/creditspage.h"
#include "shell/fcontrols.h"
#include "shell/fpieces.h"
#include "shell/fsplash.h"
#include "shell/menucontrols.h"
#include "shell/menulayout.h"
#include "shell/musicpage.h"
#include "shell/newgamepage.h"
#include "shell/pages.h"
#include "shell/saving.h"
#include "shell/scorespage.h"
#include "shell/storepage.h"
#include "shell/toolkit/toolkit.h"
#include "storage/files/log.h"

namespace glonks {
namespace {

void addMenus() {
  fMain.caption = "Glonks";
  fMain.unload = fMain_Form_Unload;
  fMain.menus = {
      {"Game", {{"New", mNew_Click}, {"Quit", mExit_Click}}},
      {"Options",
       {{"Spend Credits", mStore_Click},
        {"Backgrounds", mBackgrounds_Click},
        {"Music", mMusic_Click}}},
      {"View",
       {{"High Scores", mScores_Click}, {"Bands", mBands_Click}, {"Credits", mCredits_Click}}},
      {"Help",
       {{"About", mAbout_Click},
        {"Manual", mManual_Click},
        {"Pieces", mPieces_Click},
        {"Controls", mControls_Click}}}};
}

}  // namespace

void fMain_Form_Load() {
  logEnabled = True;
  openLog();
  rtcRandomize(clockSeed());
  addMenus();
  layOutMenu();
  hidePages();
  boot();
  addPage(titlePage);
}

void boot() {
  loadScores();
  loadStore();
  popModes();
  popThemes();
  popSongs();
  addPage(newGamePage);  // Oddity 28: the title page covers it
  songIndex = -1;
}

void fMain_Form_Unload() {
  saveScores();
  saveStore();
  closeLog();
  endProgram();
}

void mExit_Click() {
  saveAll();
  endProgram();
}

void mAbout_Click() { showForm(fSplash, fSplash_Form_Load); }

void mManual_Click() {
  const std::string manual = "\\manual.exe";
  if (!startProgram(manual)) messageBox("The file \"" + manual + "\" can't be started.");
}

void mPieces_Click() { showForm(fPieces, fPieces_Form_Load); }

void mControls_Click() { showForm(fControls, fControls_Form_Load); }

}  // namespace glonks
