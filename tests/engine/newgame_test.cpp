#include "game/modes.h"
#include "tests/engine/enginetest.h"

namespace glonks {

class GameResetTest : public EngineTest {
 protected:
  static void reset(i32 plate = 1) {
    fake::queueDraw(plate - 1, 5);
    initVariables();
  }

  // Whether a surface shows the picture of a file, at a few places.
  static bool shows(const Surface& surface, const std::string& name) {
    SurfaceDesc desc;
    const Surface file = dd->CreateSurfaceFromFile("\\" + name + ".bmp", desc);
    bool same = surface->width() == file->width();
    for (i32 i = 0; same && i < 40; ++i) same = surface->pixel(i, i) == file->pixel(i, i);
    return same;
  }
};

TEST_F(GameResetTest, DirtyGameComesOutClean) {
  score = minuteStart = selectedRow = pythagoreanSum = rewardLevelFile = frogBonusOn =
      pythagoreanDone = limitOn = surviveOn = avoidOn = landOn = 7;
  goalScore = goalPieceCount = limitMinutes = limitSeconds = surviveMinutes = surviveSeconds =
      avoidLeft = landLeft = impactsUpper = zapsUpper = scorePopupsUpper = tickerUpper =
          frogsUpper = pieceCatalogUpper = 7;
  levelTitle = rewardLevelName = goalPieceName = avoidName = landName = "x";
  put(3, 3, "Bomb");
  drop(2);
  pieceCatalog.back().name = "Old";

  reset();

  EXPECT_EQ((Numbers{score, minuteStart, selectedRow, pythagoreanSum, rewardLevelFile, frogBonusOn,
                     pythagoreanDone, limitOn, surviveOn, avoidOn, landOn}),
            Numbers(11, 0));
  EXPECT_EQ((Numbers{goalScore, goalPieceCount, limitMinutes, limitSeconds, surviveMinutes,
                     surviveSeconds, avoidLeft, landLeft, pieceCatalogUpper, fallingPiecesUpper,
                     impactsUpper, zapsUpper, scorePopupsUpper, tickerUpper, frogsUpper}),
            Numbers(15, -1));
  EXPECT_EQ(levelTitle + rewardLevelName + goalPieceName + avoidName + landName, "-1-1-1");
  EXPECT_EQ(field() + pieceCatalog.back().name, "");
  EXPECT_TRUE(fallingPieces.empty());
}

TEST_F(GameResetTest, SamplesAreLoadedInTheirOrderAndEachStandsInItsPlace) {
  reset();
  EXPECT_EQ(fake::samplesLoaded,
            (Names{"_changerow", "_moverow",     "_gameover",    "_connect01", "_connect02",
                   "_connect03", "_pop01",       "_slam01",      "_gorgon01",  "_coin01",
                   "_gorgon02",  "_calculate01", "_calculate02", "_bowling01", "_frog01",
                   "_frog02",    "_frog03",      "_detonate",    "_music01",   "_bauble01",
                   "_bauble02",  "_clapping01",  "_clapping02",  "_clapping03"}));
  const auto& [connect1, connect2, connect3] = connectSounds;
  const auto& [frog1, frog2, frog3] = frogSounds;
  const auto& [clapping1, clapping2, clapping3] = clappingSounds;
  for (const Sample& sample :
       {_changerow,   _moverow,   _gameover, connect1,  connect2,  connect3,
        _pop01,       _slam01,    _gorgon01, _coin01,   _gorgon02, _calculate01,
        _calculate02, _bowling01, frog1,     frog2,     frog3,     _detonate,
        _music01,     _bauble01,  _bauble02, clapping1, clapping2, clapping3}) {
    sample->Play(0);
  }
  EXPECT_EQ(fake::sounds, fake::samplesLoaded);
}

TEST_F(GameResetTest, PicturesStandInTheirPlaces) {
  reset(3);
  EXPECT_TRUE(shows(plateSurface, "themes\\Cells\\plate_03"));
  std::vector<std::pair<Surface, std::string>> pictures = {
      {pointerSurface, "pointer"},     {zapVSurface, "zap_v"},   {zapHSurface, "zap_h"},
      {explosionSurface, "explosion"}, {glyphSurfaces[0], "A"},  {glyphSurfaces[26], "!"},
      {glyphSurfaces[27], "Space"},    {glyphSurfaces[37], "9"}, {frogPictures[4], "frog05"}};
  const std::pair<const char*, const char*> frames[] = {
      {"Freestyle", ""}, {"Arcade", "A"}, {"B-Type", "B"}, {"Midnight Bowling", "M"}};
  for (const auto& [mode, letter] : frames) {
    gameMode = modeTitled(mode);
    reset();
    pictures.emplace_back(frameSurface, std::string("frame") + letter);
  }
  for (const auto& [shown, name] : pictures) EXPECT_TRUE(shows(shown, "images\\" + name)) << name;
  themeName = "Nowhere";
  EXPECT_PRED2(holds, errorOf([] { reset(5); }), "\\themes\\Nowhere\\plate_05.bmp");
}

}  // namespace glonks
