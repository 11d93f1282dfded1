#include "shell/pages.h"

#include "shell/menucontrols.h"

namespace glonks {

void hidePages() {
  for (Frame& page : frame) page.visible = page.enabled = False;
}

void addPage(i16 page) {
  Frame& shown = frame[static_cast<std::size_t>(page)];
  shown.visible = shown.enabled = True;
}

void showPage(i16 page) {
  hidePages();
  addPage(page);
}

}  // namespace glonks
