#include "shell/songlist.h"

#include "shell/menucontrols.h"

namespace glonks {

void popSongs() {
  clearItems(songs);
  songs.sorted = True;
  for (const char* row : {"Paper Lanterns - Slow Parade", "The Tin Orchard - Clockwork Rain",
                          "Velvet Gears - Night Bus Home", "Low Tide Radio - Seven Rows"}) {
    addItem(songs, row);
  }
}

}  // namespace glonks
