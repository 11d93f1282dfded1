#include "present/music.h"

#include "present/services/bass.h"
#include "tests/engine/enginetest.h"

namespace glonks {

class MusicTest : public EngineTest {};

TEST_F(MusicTest, NextSongIsNeverTheOneBeforeIfThereIsAnother) {
  nextSong();  // none is silence
  songNames.push_back("A");
  fake::draws = {0, 0};
  nextSong();
  nextSong();
  for (const char* row : {"B", "C"}) songNames.push_back(row);
  musicVolume = 35;
  fake::draws = {0, 0, 0.9F};
  nextSong();
  EXPECT_EQ(fake::songVolume, 35);
  EXPECT_EQ(fake::songsOpened, (Names{"\\music\\A", "\\music\\A", "\\music\\C"}));
}

TEST_F(MusicTest, SongLineStartsTheNextSongAndGivesUpThoseThatCantBePlayed) {
  musicStream = 0;
  forgetFailedSongs();
  for (const char* row : {"A", "B"}) songNames.push_back(row);
  fake::brokenSongs = {"\\music\\A"};
  fake::draws = {0, 0.9F};
  for (i32 pass = 0; pass < 5; ++pass) showSongLine();  // the second goes on
  EXPECT_EQ(fake::songsOpened, (Names{"\\music\\A", "\\music\\B"}));
  fake::brokenSongs.insert("\\music\\B");
  fake::songEnded = true;
  fake::draws = {0, 0.9F};
  for (i32 pass = 0; pass < 5; ++pass) showSongLine();  // no more draws once both have failed
  forgetFailedSongs();
  fake::draws = {0};
  showSongLine();
  EXPECT_EQ(fake::songsOpened.size(), 5U);
}

}  // namespace glonks
