#include "shell/musicpage.h"

#include <algorithm>
#include <array>

#include "game/model/model.h"
#include "shell/menucontrols.h"
#include "shell/pages.h"

namespace glonks {
namespace {

constexpr std::array<const char*, 4> firstSongs = {
    "Paper Lanterns - Slow Parade", "The Tin Orchard - Clockwork Rain",
    "Velvet Gears - Night Bus Home", "Low Tide Radio - Seven Rows"};

// In the order in which they are opened, which is that of the alphabet too, and behind the others:
// so they come last in the list, and the places of those before them stay.
constexpr std::array<const char*, bonusSongCount> bonusSongs = {
    "Winter Kiosk - Snowed In Sideways", "Yonder Bakery - Warm Bread Waltz",
    "Zigzag Ferry - Last Boat at Midnight"};

constexpr i32 notesPerSong = 3;

}  // namespace

void mMusic_Click() { showPage(musicPage); }

void popSongs() {
  clearItems(songs);
  for (const char* row : firstSongs) addItem(songs, row);
  openBonusSongs();
}

i32 openBonusSongCount() {
  const i32 earned = std::min(notesCollected / notesPerSong, bonusSongCount);
  return std::min(stockOf(bonusSongItem) + earned, bonusSongCount);
}

std::vector<std::string> openBonusSongs() {
  std::vector<std::string> opened;
  for (i32 i = 0; i < openBonusSongCount(); ++i) {
    const std::string song = bonusSongs.at(static_cast<std::size_t>(i));
    if (std::find(songs.items.begin(), songs.items.end(), song) != songs.items.end()) continue;
    addItem(songs, song);
    opened.push_back(song);
  }
  songNames = songs.items;
  return opened;
}

// Oddity 29: the volume waits for the next save of the store.
void HScroll2_Change() { musicVolume = HScroll2.value; }

void HScroll2_Scroll() { musicVolume = HScroll2.value; }

}  // namespace glonks
