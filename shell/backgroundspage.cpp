#include "shell/backgroundspage.h"

#include "base/text.h"
#include "game/model/model.h"
#include "game/model/resources.h"
#include "shell/bandspage.h"
#include "shell/menucontrols.h"
#include "shell/pages.h"
#include "shell/storepage.h"

namespace glonks {
namespace {

void showPlate(i16 number) {
  themePic.picture = platePath(textOf(theme), number);
  setWords(themePic, "Preview", "Picture " + plainNumber(number) + " of " + textOf(theme));
}

}  // namespace

void mBackgrounds_Click() { showPage(backgroundsPage); }

void popThemes() {
  clearItems(theme);
  addItem(theme, "Cells");
  addItem(theme, "Embers");
  setText(theme, themeName);  // Oddity 27: this writes the store, like any choice
  if (theme.listIndex < 0) setListIndex(theme, 0);
  readBands();
}

void theme_Click() {
  showPlate(1);
  setValue(HScroll1, 1);
  themeName = textOf(theme);
  saveStore();
}

void HScroll1_Change() { showPlate(HScroll1.value); }

}  // namespace glonks
