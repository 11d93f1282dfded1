#include "present/music.h"

#include "present/services/bass.h"
#include "tests/engine/enginetest.h"

namespace glonks {

class MusicTest : public EngineTest {
 protected:
  MusicTest() {
    musicStream = 0;
    forgetFailedSongs();
  }
  static void drawSongs(const std::vector<i32>& draws, i32 count) {
    for (const i32 draw : draws) fake::queueDraw(draw, count);
  }
};

TEST_F(MusicTest, NextSongIsNeverTheOneBeforeIfThereIsAnother) {
  nextSong();  // none is silence
  addItem(songs, "A - a");
  drawSongs({0, 0}, 1);
  nextSong();
  nextSong();
  for (const char* row : {"B - b", "C - c"}) addItem(songs, row);
  musicVolume = 35;
  drawSongs({0, 0, 2}, 3);
  nextSong();
  EXPECT_EQ(songTitle, "C - c");
  EXPECT_EQ(fake::songVolume, 35);
  EXPECT_EQ(fake::songsOpened, (Names{"\\music\\A - a", "\\music\\A - a", "\\music\\C - c"}));
}

TEST_F(MusicTest, SongLineStartsTheNextSongAndGivesUpThoseThatCantBePlayed) {
  for (const char* row : {"A - a", "B - b"}) addItem(songs, row);
  fake::brokenSongs = {"\\music\\A - a"};
  drawSongs({0, 1}, 2);
  for (i32 pass = 0; pass < 5; ++pass) showSongLine();  // the second goes on
  EXPECT_EQ(fake::songsOpened, (Names{"\\music\\A - a", "\\music\\B - b"}));
  fake::brokenSongs.insert("\\music\\B - b");
  fake::songEnded = true;
  drawSongs({0, 1}, 2);
  for (i32 pass = 0; pass < 5; ++pass) showSongLine();  // no more draws once both have failed
  EXPECT_EQ(fake::songsOpened.size(), 4U);
  forgetFailedSongs();
  drawSongs({0}, 2);
  showSongLine();
  EXPECT_EQ(fake::songsOpened.size(), 5U);
}

}  // namespace glonks
