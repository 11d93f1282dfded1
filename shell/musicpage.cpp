#include "shell/musicpage.h"

#include "game/model/model.h"
#include "shell/menucontrols.h"
#include "shell/pages.h"

namespace glonks {

void mMusic_Click() { showPage(musicPage); }

void popSongs() {
  clearItems(songs);
  for (const char* row : {"Paper Lanterns - Slow Parade", "The Tin Orchard - Clockwork Rain",
                          "Velvet Gears - Night Bus Home", "Low Tide Radio - Seven Rows"}) {
    addItem(songs, row);
  }
  songNames = songs.items;
}

// Oddity 29: the volume waits for the next save of the store.
void HScroll2_Change() { musicVolume = HScroll2.value; }

void HScroll2_Scroll() { musicVolume = HScroll2.value; }

}  // namespace glonks
