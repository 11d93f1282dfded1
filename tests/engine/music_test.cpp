#include "present/music.h"

#include "tests/engine/enginetest.h"

namespace glonks {

class MusicTest : public EngineTest {};

TEST_F(MusicTest, NextSongIsNeverTheOneBeforeIfThereIsAnother) {
  nextSong();  // none is silence
  songNames = {"A"};
  fake::draws = {0, 0};
  nextSong();
  nextSong();
  songNames = {"A", "C"};
  musicVolume = 35;
  fake::draws = {0, 0, 0.9};
  nextSong();
  EXPECT_EQ((Numbers{fake::songVolume, songIndex}), (Numbers{35, 1}));
  EXPECT_EQ(fake::songsOpened, (Names{"\\music\\A", "\\music\\A", "\\music\\C"}));
}

TEST_F(MusicTest, SongLineStartsTheNextSongAndGivesUpThoseThatCantBePlayed) {
  songNames = {"A", "B"};
  fake::brokenSongs = {"\\music\\A"};
  fake::draws = {0, 0.9};
  for (i32 pass = 0; pass < 5; ++pass) showSongLine();  // the second goes on
  EXPECT_EQ(fake::songsOpened, (Names{"\\music\\A", "\\music\\B"}));
  EXPECT_EQ(drawn(),
            (Names{" at 80,723", "A at 80,723", "B at 80,723", "B at 80,723", "B at 80,723"}));
  fake::brokenSongs.insert("\\music\\B");
  fake::songEnded = true;
  fake::draws = {0, 0.9};
  for (i32 pass = 0; pass < 5; ++pass) showSongLine();  // no more draws once both have failed
  forgetFailedSongs();
  fake::draws = {0};
  showSongLine();
  EXPECT_EQ(fake::songsOpened.size(), 5U);
  EXPECT_EQ(logged().size(), 3U);  // A, B, and A again
}

}  // namespace glonks
