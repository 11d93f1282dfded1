#include "present/effects/effects.h"

#include "game/modes.h"
#include "game/playloop.h"
#include "present/effectdrawing.h"
#include "present/effects/applause.h"
#include "present/effects/ticker.h"
#include "present/frogparade.h"
#include "present/goaldisplay.h"
#include "present/tickerdrawing.h"
#include "tests/engine/boardtest.h"

namespace glonks {

class EffectsTest : public BoardTest {
 protected:
  EffectsTest() { backBuffer->BltColorFill({}, 0); }

  // Puts one colour in the place of a picture, without a key.
  static void paint(Surface& picture, i32 size) {
    picture = std::make_shared<DirectDrawSurface7>(size, size);
    picture->BltColorFill({}, 1);
  }

  // The rectangle that all of backBuffer's painted pixels fill, and blackens it.
  static Numbers painted() {
    Numbers area = {9999, 9999, -1, -1};
    for (i32 y = 0; y < 768; ++y) {
      for (i32 x = 0; x < 1024; ++x) {
        if (backBuffer->pixel(x, y) != 1) continue;
        area = {std::min(area[0], x), std::min(area[1], y), std::max(area[2], x + 1),
                std::max(area[3], y + 1)};
      }
    }
    backBuffer->BltColorFill({}, 0);
    return area;
  }

  struct Line {
    i32 x, y;
    std::string text;
  };
  // Whether exactly these texts are on a black backBuffer, which is blackened.
  static bool shows(const std::vector<Line>& lines) {
    const std::vector<u32> drawn(backBuffer->pixels(), backBuffer->pixels() + 1024 * 768);
    backBuffer->BltColorFill({}, 0);
    for (const Line& line : lines) backBuffer->DrawText(line.x, line.y, line.text, False);
    const bool same = std::equal(drawn.begin(), drawn.end(), backBuffer->pixels());
    backBuffer->BltColorFill({}, 0);
    return same;
  }
};

TEST_F(EffectsTest, ImpactGrowsForSixFramesAndSoundsUnlessSilent) {
  paint(explosionSurface, 300);
  pushImpact(100, -20, True);
  EXPECT_EQ(heard(), "");
  for (const i32 half : {5, 30, 55, 80, 105, 130}) {
    if (half == 30) pushImpact(100, -20, False);
    drawImpacts();
    EXPECT_EQ(painted(), (Numbers{290 - half, 170 - half, 290 + half, 170 + half}));
  }
  EXPECT_EQ((Numbers{impactsUpper, impacts[0].age}), (Numbers{0, 260}));
  drawImpacts();
  EXPECT_EQ(impactsUpper, -1);
  EXPECT_EQ(heard(), "pop01");
}

TEST_F(EffectsTest, ZapSwellsAcrossItsLengthForThreeFrames) {
  for (const Flag horizontal : {True, False}) {
    paint(horizontal == True ? zapHSurface : zapVSurface, 80);
    pushZap(200, 300, horizontal);
    for (const i32 half : {2, 15, 27}) {
      EXPECT_EQ(zapsUpper, 0);
      drawZaps();
      EXPECT_EQ(painted(), horizontal == True ? (Numbers{185, 340 - half, 270, 340 + half})
                                              : (Numbers{240 - half, 300, 240 + half, 395}));
    }
    EXPECT_EQ(zapsUpper, -1);
  }
  EXPECT_EQ(heard(), "slam01 slam01");
}

TEST_F(EffectsTest, PopupPaysInTheFrameInWhichItHasClimbedOut) {
  pushPopup(15, -155, -30);
  pushPopup(200, -171, 99999);
  pushPopup(0, -99, -99999);
  drawPopups();
  EXPECT_TRUE(shows({{205, 35, "-30"}, {390, 19, " 32767"}, {190, 91, "-32768"}}));
  EXPECT_EQ((Numbers{score, scorePopupsUpper}), (Numbers{32767, 1}));
  drawPopups();
  EXPECT_TRUE(shows({{205, 25, "-30"}, {190, 81, "-32768"}}));
  EXPECT_EQ((Numbers{score, scorePopupsUpper}), (Numbers{32767, 1}));
  drawPopups();
  EXPECT_EQ((Numbers{score, scorePopupsUpper}), (Numbers{32737, 0}));
  score = -2147483600;
  for (i32 i = 0; i < 9; ++i) drawPopups();
  EXPECT_EQ((Numbers{score, scorePopupsUpper}), (Numbers{-2147483647 - 1, -1}));
}

TEST_F(EffectsTest, TickerRunsFromTheRightAndDropsItsLettersWhole) {
  pushMessage("gone!");
  pushMessage("aZ! 09,z");
  EXPECT_EQ(ticker(), "AZ! 09?Z");
  EXPECT_FALSE(glyphFor(','));
  EXPECT_EQ((Numbers{tickerLines[0].x, tickerLines[7].x}), (Numbers{1000, 1350}));
  for (Surface& glyph : glyphSurfaces) paint(glyph, 50);
  pushMessage("I");
  drawTicker();
  EXPECT_EQ(painted(), (Numbers{986, 365, 1024, 415}));
  for (i32 i = 2; i < 71; ++i) drawTicker();
  painted();
  drawTicker();
  EXPECT_EQ(painted(), (Numbers{6, 365, 56, 415}));
  drawTicker();
  EXPECT_EQ((Numbers{tickerUpper, painted()[2]}), (Numbers{-1, -1}));
  pushMessage(" I");  // the second letter comes to 0 exactly
  for (i32 i = 0; i < 75; ++i) drawTicker();
  EXPECT_EQ(tickerUpper, -1);
  pushMessage(std::string(700, 'x'));
  EXPECT_EQ((Numbers{tickerUpper, tickerLines.back().x}), (Numbers{635, 32750}));
  pushMessage("");
  EXPECT_EQ(tickerUpper, -1);
}

TEST_F(EffectsTest, ParadeSendsTwentyFrogsDownTheScreenAndStops) {
  frogBonusUntil = gameTick() + 1;
  for (i32 sound : {0, 3}) {
    fake::queueDraw(500 + 100 * sound, 2000);
    fake::draws.insert(fake::draws.end(), {0.9F, 0.9F, 0.9F});  // picture 5, delay 5, speed 8
    fake::queueDraw(sound, 200);
    paint(frogPictures[4], 100);
    frogParade();
    EXPECT_EQ(painted(), sound == 0 ? (Numbers{500, 0, 600, 100}) : (Numbers{492, 0, 900, 108}));
  }
  EXPECT_EQ(heard(), "frog01");
  for (i32 i = 2; i < 30; ++i) {
    // From a frog's sixth frame on its next picture shows: the first one's here.
    EXPECT_EQ(frogs[0].picture, i < 6 ? 5 : i < 12 ? 1 : frogs[0].picture);
    if (i < 20) fake::draws.insert(fake::draws.end(), {0.5F, 0, 0, 0});
    fake::queueDraw(199, 200);
    frogParade();
  }
  EXPECT_EQ(frogsUpper, 19);
  EXPECT_EQ((Numbers{frogs[0].x, frogs[0].y, frogs[19].speed}), (Numbers{260, 240, 7}));

  frogs[0].x = 8;    // goes on at the very edge
  frogs[1].x = 7;    // leaves by the left edge and starts anew
  frogs[2].y = 762;  // leaves by the bottom
  frogs[3].picture = 4;
  frogs[3].pictureCount = 9;
  fake::queueDraw(1999, 2000);
  fake::queueDraw(3, 2000);
  fake::queueDraw(2, 200);
  frogParade();
  EXPECT_EQ((Numbers{frogs[0].x, frogs[1].x, frogs[1].y, frogs[2].x, frogs[2].y}),
            (Numbers{0, 1999, 0, 3, 0}));
  EXPECT_EQ(frogs[3].picture, 5);
  fake::clockNow += 1;  // the bonus is over: no sound, no new start
  frogParade();
  EXPECT_EQ(frogs[0].x, -8);
  EXPECT_EQ(heard(), "frog03");
}

TEST_F(EffectsTest, ApplauseMixesClappingByItsDraw) {
  const char* mixes[] = {"1", "2", "3", "12", "13", "23", "231"};
  for (i32 draw = 0; draw < 7; ++draw) {
    fake::queueDraw(draw, 7);
    applause();
    std::string mix;
    for (const std::string& sound : fake::sounds) mix += sound.back();
    EXPECT_EQ(mix, mixes[draw]);
    EXPECT_EQ(fake::sounds[0].substr(0, 10), "_clapping0");
    heard();
  }
}

TEST_F(EffectsTest, CountersFollowTheModePicked) {
  itemStock = {3, 0, 12, 7, 99, 99};
  bank = 5;
  notesCollected = 8;
  bTypeLeft = 31;
  const Line kept[] = {{795, 33, "5 x "}, {895, 33, "8 x "}};
  pointerSurface = nullptr;
  const std::vector<Line> lines[] = {{{300, 33, "3 x "},
                                      {400, 33, "0 x "},
                                      {500, 33, "12 x "},
                                      {600, 33, "7 x "},
                                      kept[0],
                                      kept[1]},
                                     {kept[0], kept[1]},
                                     {{300, 33, "31 x "}, kept[0], kept[1]}};
  const char* titles[] = {"Freestyle", "Arcade", "B-Type"};
  for (std::size_t mode = 0; mode < 3; ++mode) {
    gameMode = modeTitled(titles[mode]);
    drawMovingThings(runPlainly);
    EXPECT_TRUE(shows(lines[mode])) << mode;
  }
}

TEST_F(EffectsTest, GoalLinesStandInTheirOrderAndMoveUp) {
  minuteStart = gameTick() - 50999;
  goalPieceName = "Bomb";
  landName = "Gorgon";
  avoidName = "Rock";
  const struct {
    i16 land, avoid, piece;
    i32 goal;
    i16 limit, survive;
    std::vector<Line> lines;
  } cases[] = {{-1, -1, -1, -1, -1, -1, {}},
               {4, -1, -1, -1, 2, -1, {{85, 26, "Gorgons:   4"}, {85, 41, "Time: 2:09"}}},
               {-1, 3, 0, -1, -1, -1, {{85, 26, "Rocks:   3"}, {85, 41, "Bombs:   0"}}},
               {2, 3, -1, -1, -1, -1, {{85, 26, "Gorgons:   2"}, {85, 26, "Rocks:   3"}}},
               {-1,
                -1,
                2,
                500,
                0,
                1,
                {{85, 26, "Bombs:   2"},
                 {85, 41, "Score: -7/ 500"},
                 {85, 56, "Time: 0:09"},
                 {85, 56, "Time: 1:09"}}},
               {-1, -1, -1, 0, -1, 12, {{85, 26, "Score: -7/ 0"}, {85, 41, "Time: 12:09"}}}};
  score = -7;
  for (const auto& goals : cases) {
    landLeft = goals.land;
    landOn = flagOf(goals.land != -1);
    avoidLeft = goals.avoid;
    avoidOn = flagOf(goals.avoid != -1);
    goalPieceCount = goals.piece;
    goalScore = goals.goal;
    limitMinutes = goals.limit;
    limitOn = flagOf(goals.limit != -1);
    surviveMinutes = goals.survive;
    surviveOn = flagOf(goals.survive != -1);
    drawGoals();
    EXPECT_TRUE(shows(goals.lines)) << goals.land << goals.avoid << goals.piece << goals.goal;
  }
  minuteStart += 1000;
  score = 20;
  drawGoals();
  EXPECT_TRUE(shows({{85, 26, "Score:  20/ 0"}, {85, 41, "Time: 12:10"}}));
  levelOver = True;  // the time line goes, the counts stay
  drawGoals();
  EXPECT_TRUE(shows({{85, 26, "Score:  20/ 0"}}));
  levelOver = False;
}

}  // namespace glonks
