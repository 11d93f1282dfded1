#include "present/music.h"

#include <set>
#include <string>

#include "base/random.h"
#include "game/model/model.h"
#include "present/screen/display.h"
#include "present/services/audiodevice.h"
#include "present/services/bass.h"
#include "storage/files/log.h"

namespace glonks {
namespace {

constexpr i32 keepFrequency = -1;
constexpr i32 keepPan = -101;
constexpr i32 songLineX = 80;
constexpr i32 songLineY = 723;

// Positions in songNames of songs that could not be opened in this game.
std::set<i16> failedSongs;

i16 drawSong(i32 count) {
  while (true) {
    const auto draw = static_cast<i16>(drawBelow(count));
    if (draw != songIndex || count == 1) return draw;
  }
}

void logFailedSong() {
  if (!failedSongs.insert(songIndex).second) return;
  logStep("nextSong - the song \"" + songTitle + "\" can't be played");
}

}  // namespace

void nextSong() {
  const auto count = static_cast<i32>(songNames.size());
  BASS_StreamFree(musicStream);
  musicStream = 0;
  if (count > 0) {
    const i16 draw = drawSong(count);
    songTitle = songNames[static_cast<std::size_t>(draw)];
    musicStream = BASS_StreamCreateFile(0, "\\music\\" + songTitle, 0, 0, 0);
    BASS_ChannelSetAttributes(musicStream, keepFrequency, musicVolume, keepPan);
    songIndex = draw;
    if (musicStream == 0) logFailedSong();
  }
  BASS_StreamPlay(musicStream, 0, 0);
}

void showSongLine() {
  backBuffer->DrawText(songLineX, songLineY, songTitle, False);
  const std::string notice = takeSoundNotice();
  if (!notice.empty()) logStep(notice);
  if (BASS_ChannelIsActive(musicStream) != 0) return;
  if (failedSongs.size() < songNames.size()) nextSong();
}

void forgetFailedSongs() { failedSongs.clear(); }

}  // namespace glonks
