#include "shell/fmain.h"

#include "game/clock.h"
#include "game/model.h"
#include "game/random.h"
#include "shell/fcontrols.h"
#include "shell/fpieces.h"
#include "shell/fsplash.h"
#include "shell/menucontrols.h"
#include "shell/menulayout.h"
#include "shell/modes.h"
#include "shell/musicpage.h"
#include "shell/storepage.h"
#include "shell/themes.h"
#include "shell/toolkit/toolkit.h"
#include "storage/log.h"
#include "storage/scores.h"
#include "storage/store.h"

namespace glonks {
namespace {

void hidePages() {
  for (Frame& page : frame) page.visible = page.enabled = False;
}

void showAndEnable(i16 page) {
  Frame& shown = frame[static_cast<std::size_t>(page)];
  shown.visible = shown.enabled = True;
}

}  // namespace

void fMain_Form_Load() {
  logEnabled = True;
  openLog();
  rtcRandomize(clockSeed());
  layOutMenu();
  hidePages();
  boot();
  showAndEnable(titlePage);
}

void boot() {
  loadScores();
  loadStore();
  popModes();
  popThemes();
  popSongs();
  showAndEnable(newGamePage);  // an oddity that is kept: the title page covers it
  songIndex = -1;
}

void showPage(i16 page) {
  hidePages();
  showAndEnable(page);
}

void fMain_Form_Unload() {
  saveScores();
  saveStore();
  closeLog();
  endProgram();
}

void mNew_Click() { showPage(newGamePage); }

void mExit_Click() { endProgram(); }

void mStore_Click() {
  showPage(storePage);
  showStock();
}

void mBackgrounds_Click() { showPage(backgroundsPage); }

void mMusic_Click() { showPage(musicPage); }

void mScores_Click() { showPage(scoresPage); }

void mBands_Click() { showPage(bandsPage); }

void mCredits_Click() { showPage(creditsPage); }

void mAbout_Click() { showForm(fSplash, fSplash_Form_Load); }

void mManual_Click() {
  const std::string manual = "\\manual.exe";
  if (!startProgram(manual)) messageBox("The file \"" + manual + "\" can't be started.");
}

void mPieces_Click() { showForm(fPieces, fPieces_Form_Load); }

void mControls_Click() { showForm(fControls, fControls_Form_Load); }

void Image6_Click() { mNew_Click(); }

void scoreModes_Click() { scores_freestyle.visible = flagOf(textOf(scoreModes) == "Freestyle"); }

}  // namespace glonks
