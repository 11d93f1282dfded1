#include "present/music.h"

#include "present/services/bass.h"
#include "shell/menucontrols.h"
#include "tests/engine/enginetest.h"

namespace glonks {
namespace {

class MusicTest : public EngineTest {
 protected:
  MusicTest() {
    clearItems(songs);
    musicStream = 0;
    forgetFailedSongs();
  }
};

TEST_F(MusicTest, NextSongIsNeverTheOneBefore) {
  for (const char* row : {"A - a", "B - b", "C - c"}) addItem(songs, row);
  musicVolume = 35;
  fake::queueDraw(1, 3);
  nextSong();
  EXPECT_EQ(songIndex, 1);
  EXPECT_EQ(songTitle, "B - b");
  EXPECT_EQ(fake::songVolume, 35);
  for (const i32 draw : {1, 1, 0}) fake::queueDraw(draw, 3);
  nextSong();
  EXPECT_EQ(songTitle, "A - a");
  EXPECT_EQ(fake::songsOpened, (Sounds{"\\music\\B - b", "\\music\\A - a"}));
}

TEST_F(MusicTest, OneSongPlaysAgainAndNoneIsSilence) {
  nextSong();
  EXPECT_TRUE(fake::songsOpened.empty());
  addItem(songs, "A - a");
  fake::queueDraw(0, 1);
  nextSong();
  fake::queueDraw(0, 1);
  nextSong();
  EXPECT_EQ(fake::songsOpened.size(), 2U);
}

TEST_F(MusicTest, SongLineStartsTheNextSongWhenOneHasEnded) {
  addItem(songs, "A - a");
  fake::queueDraw(0, 1);
  nextSong();
  showSongLine();
  EXPECT_EQ(fake::songsOpened.size(), 1U);
  fake::songEnded = true;
  fake::queueDraw(0, 1);
  showSongLine();
  EXPECT_EQ(fake::songsOpened.size(), 2U);
  bool drawn = false;
  for (i32 x = 80; x < 120; ++x) drawn = drawn || backBuffer->pixel(x, 733) != 0;
  EXPECT_TRUE(drawn);
}

TEST_F(MusicTest, SongsThatCantBePlayedAreGivenUpOneByOne) {
  for (const char* row : {"A - a", "B - b"}) addItem(songs, row);
  fake::brokenSongs = {"\\music\\A - a"};
  fake::queueDraw(0, 2);
  showSongLine();
  EXPECT_EQ(musicStream, 0U);
  fake::queueDraw(1, 2);
  showSongLine();
  EXPECT_NE(musicStream, 0U);

  fake::brokenSongs = {"\\music\\A - a", "\\music\\B - b"};
  fake::queueDraw(0, 2);
  nextSong();
  fake::queueDraw(1, 2);
  for (i32 pass = 0; pass < 10; ++pass) showSongLine();  // no more draws once both have failed
  EXPECT_EQ(fake::songsOpened.size(), 4U);
  forgetFailedSongs();
  fake::queueDraw(0, 2);
  showSongLine();
  EXPECT_EQ(fake::songsOpened.size(), 5U);
}

}  // namespace
}  // namespace glonks
