#include "game/gamereset.h"

#include "game/resources.h"
#include "shell/menucontrols.h"
#include "tests/engine/enginetest.h"

namespace glonks {
namespace {

class GameResetTest : public EngineTest {
 protected:
  GameResetTest() {
    clearItems(tMode);
    for (const char* mode : {"Freestyle", "Arcade", "B-Type", "Midnight Bowling"}) {
      addItem(tMode, mode);
    }
  }
  ~GameResetTest() override { clearItems(tMode); }

  static void reset(i32 plate = 1) {
    fake::queueDraw(plate - 1, 5);
    initVariables();
  }
};

TEST_F(GameResetTest, DirtyGameComesOutClean) {
  put(3, 3, "Bomb");
  drop(2);
  for (Piece& piece : pieceCatalog) piece.name = "Old";
  pieceCatalogUpper = 18;
  grow(impacts, impactsUpper);
  grow(zaps, zapsUpper);
  grow(scorePopups, scorePopupsUpper);
  grow(tickerLines, tickerUpper);
  grow(frogs, frogsUpper);
  score = pythagoreanSum = selectedRow = 6;
  frogBonusOn = pythagoreanDone = True;
  limitOn = surviveOn = avoidOn = landOn = True;
  levelTitle = rewardLevelName = goalPieceName = avoidName = landName = "x";
  rewardLevelFile = goalPieceCount = limitMinutes = limitSeconds = surviveMinutes = surviveSeconds =
      avoidLeft = landLeft = 4;
  goalScore = minuteStart = 4;
  bank = 11;
  itemStock.fill(12);
  notesCollected = 13;
  songIndex = 2;
  tickBase = 14;
  bTypeLeft = 15;
  frogBonusUntil = 16;
  levelWon = levelOver = True;

  reset();

  EXPECT_EQ(field().find_first_not_of("./"), std::string::npos);
  for (const Piece& piece : pieceCatalog) EXPECT_EQ(piece.name, "");
  for (const i16 upper : {pieceCatalogUpper, fallingPiecesUpper, impactsUpper, zapsUpper,
                          scorePopupsUpper, tickerUpper, frogsUpper}) {
    EXPECT_EQ(upper, -1);
  }
  EXPECT_TRUE(fallingPieces.empty() && impacts.empty() && zaps.empty() && scorePopups.empty() &&
              tickerLines.empty() && frogs.empty());
  EXPECT_EQ(score, 0);
  EXPECT_EQ(selectedRow, 0);
  EXPECT_EQ(pythagoreanSum, 0);
  for (const Flag flag : {frogBonusOn, pythagoreanDone, limitOn, surviveOn, avoidOn, landOn}) {
    EXPECT_EQ(flag, False);
  }
  EXPECT_EQ(levelTitle + rewardLevelName, "");
  for (const std::string& name : {goalPieceName, avoidName, landName}) EXPECT_EQ(name, "-1");
  for (const i32 number :
       {i32{goalPieceCount}, i32{limitMinutes}, i32{limitSeconds}, i32{surviveMinutes},
        i32{surviveSeconds}, i32{avoidLeft}, i32{landLeft}, goalScore}) {
    EXPECT_EQ(number, -1);
  }
  EXPECT_EQ(rewardLevelFile, 0);
  EXPECT_EQ(minuteStart, 0);

  // What outlasts a game.
  EXPECT_EQ(bank, 11);
  EXPECT_EQ(itemStock[5], 12);
  EXPECT_EQ(notesCollected, 13);
  EXPECT_EQ(songIndex, 2);
  EXPECT_EQ(tickBase, 14U);
  EXPECT_EQ(bTypeLeft, 15);
  EXPECT_EQ(frogBonusUntil, 16);
  EXPECT_EQ(levelWon, True);
  EXPECT_EQ(levelOver, True);
}

TEST_F(GameResetTest, SamplesAreLoadedInTheirOrderAndEachStandsInItsPlace) {
  reset();
  EXPECT_EQ(fake::samplesLoaded,
            (Sounds{"_changerow", "_moverow",     "_gameover",    "_connect01", "_connect02",
                    "_connect03", "_pop01",       "_slam01",      "_gorgon01",  "_coin01",
                    "_gorgon02",  "_calculate01", "_calculate02", "_bowling01", "_frog01",
                    "_frog02",    "_frog03",      "_detonate",    "_music01",   "_bauble01",
                    "_bauble02",  "_clapping01",  "_clapping02",  "_clapping03"}));
  for (const Sample& sample : {_changerow,
                               _moverow,
                               _gameover,
                               connectSounds[0],
                               connectSounds[1],
                               connectSounds[2],
                               _pop01,
                               _slam01,
                               _gorgon01,
                               _coin01,
                               _gorgon02,
                               _calculate01,
                               _calculate02,
                               _bowling01,
                               frogSounds[0],
                               frogSounds[1],
                               frogSounds[2],
                               _detonate,
                               _music01,
                               _bauble01,
                               _bauble02,
                               clappingSounds[0],
                               clappingSounds[1],
                               clappingSounds[2]}) {
    sample->Play(0);
  }
  EXPECT_EQ(fake::sounds, fake::samplesLoaded);
}

// Whether a surface shows the picture of a file, at a few places.
bool shows(const Surface& surface, const std::string& path) {
  SurfaceDesc desc;
  const Surface file = dd->CreateSurfaceFromFile(path, desc);
  if (surface->width() != file->width() || surface->height() != file->height()) return false;
  for (i32 y = 0; y < file->height(); y += 3) {
    for (i32 x = 0; x < file->width(); x += 3) {
      if (surface->pixel(x, y) != file->pixel(x, y)) return false;
    }
  }
  return true;
}

TEST_F(GameResetTest, PicturesStandInTheirPlaces) {
  setListIndex(tMode, 0);
  reset(3);
  EXPECT_TRUE(shows(pointerSurface, "\\images\\pointer.bmp"));
  EXPECT_TRUE(shows(zapVSurface, "\\images\\zap_v.bmp"));
  EXPECT_TRUE(shows(zapHSurface, "\\images\\zap_h.bmp"));
  EXPECT_TRUE(shows(explosionSurface, "\\images\\explosion.bmp"));
  EXPECT_TRUE(shows(glyphSurfaces[0], "\\images\\A.bmp"));
  EXPECT_TRUE(shows(glyphSurfaces[25], "\\images\\Z.bmp"));
  EXPECT_TRUE(shows(glyphSurfaces[26], "\\images\\!.bmp"));
  EXPECT_TRUE(shows(glyphSurfaces[27], "\\images\\Space.bmp"));
  EXPECT_TRUE(shows(glyphSurfaces[28], "\\images\\0.bmp"));
  EXPECT_TRUE(shows(glyphSurfaces[37], "\\images\\9.bmp"));
  EXPECT_TRUE(shows(frogPictures[4], "\\images\\frog05.bmp"));
  EXPECT_TRUE(shows(plateSurface, "\\themes\\Cells\\plate_03.bmp"));

  const std::pair<const char*, const char*> frames[] = {
      {"Freestyle", "\\images\\frame.bmp"},
      {"Arcade", "\\images\\frameA.bmp"},
      {"B-Type", "\\images\\frameB.bmp"},
      {"Midnight Bowling", "\\images\\frameM.bmp"}};
  for (const auto& [mode, file] : frames) {
    setText(tMode, mode);
    reset();
    EXPECT_TRUE(shows(frameSurface, file)) << mode;
  }
  themeName = "Embers";
  reset(5);
  EXPECT_TRUE(shows(plateSurface, "\\themes\\Embers\\plate_05.bmp"));
}

TEST_F(GameResetTest, MissingPlateIsNamed) {
  themeName = "Nowhere";
  fake::queueDraw(1, 5);
  try {
    initVariables();
    FAIL();
  } catch (const RuntimeError& error) {
    EXPECT_NE(std::string(error.what()).find("\\themes\\Nowhere\\plate_02.bmp"), std::string::npos);
  }
}

}  // namespace
}  // namespace glonks
