#include "game/modes.h"
#include "present/effectdrawing.h"
#include "present/effects/applause.h"
#include "present/effects/effects.h"
#include "present/effects/ticker.h"
#include "present/fielddrawing.h"
#include "present/frogparade.h"
#include "present/goaldisplay.h"
#include "present/itemdisplay.h"
#include "present/loadingscreen.h"
#include "present/tickerdrawing.h"
#include "tests/engine/enginetest.h"

namespace glonks {

class DrawingTest : public EngineTest {
 protected:
  static Names drawnBy(void (*draw)()) {
    draw();
    return drawn();
  }
};

TEST_F(DrawingTest, FieldIsDrawnFromTheBottomLeftAndWhatFallsOverIt) {
  lay("..2/1.cT");
  cellAt(1, 2).y = 400;  // the place comes from y alone
  drop('B', 9, -40);
  drop('S', 0, 600).alive = False;
  EXPECT_EQ(drawnBy(drawField), (Names{"glonk_01 90x90 at 80,600", "calculator_02 90x90 at 250,600",
                                       "glonk_02 90x90 at 250,480", "bomb 90x90 at 845,40",
                                       "slammer 90x90 at 80,680"}));
  selectedRow = 6;
  EXPECT_EQ(drawnBy(drawPointer), Names{"pointer 70x45 at 10,110"});
  EXPECT_EQ(drawnBy(layPlate),
            (Names{"fill 0 whole", "plate_01 500x350 to 853x610 at 81,80 opaque"}));
  EXPECT_EQ(drawnBy(layFrame), Names{"frame whole"});
  showLoadingLine(loadLoadingPicture(), "Playing...");
  EXPECT_EQ(drawn(),
            (Names{"load loading", "loading whole opaque", "Playing... at 10,10", "flip"}));
}

TEST_F(DrawingTest, ImpactsGrowForSixFramesAndZapsSwellForThree) {
  const auto shown = [](i16& upper, void (*draw)()) {
    while (upper >= 0 && fake::drawn.size() < 20) draw();
    return drawn();
  };
  pushImpact(100, -20, True);
  EXPECT_EQ(heard(), "");
  EXPECT_EQ(
      shown(impactsUpper, drawImpacts),
      (Names{"explosion 300x300 to 10x10 at 285,165", "explosion 300x300 to 60x60 at 260,140",
             "explosion 300x300 to 110x110 at 235,115", "explosion 300x300 to 160x160 at 210,90",
             "explosion 300x300 to 210x210 at 185,65", "explosion 300x300 to 260x260 at 160,40"}));
  pushZap(200, 300, True);
  pushZap(200, 300, False);
  pushImpact(0, 0, False);
  EXPECT_EQ(shown(zapsUpper, drawZaps),
            (Names{"zap_h 80x80 to 85x4 at 185,338", "zap_v 80x80 to 4x95 at 238,300",
                   "zap_h 80x80 to 85x30 at 185,325", "zap_v 80x80 to 30x95 at 225,300",
                   "zap_h 80x80 to 85x54 at 185,313", "zap_v 80x80 to 54x95 at 213,300"}));
  EXPECT_EQ(heard(), "slam01*2 pop01");
}

TEST_F(DrawingTest, PopupPaysInTheFrameInWhichItHasClimbedOut) {
  pushPopup(15, -155, -30);
  pushPopup(200, -171, 99999);
  pushPopup(0, -99, -99999);
  EXPECT_EQ(drawnBy(drawPopups), (Names{"-30 at 205,35", " 32767 at 390,19", "-32768 at 190,91"}));
  EXPECT_EQ((Numbers{score, scorePopupsUpper}), (Numbers{32767, 1}));
  EXPECT_EQ(drawnBy(drawPopups), (Names{"-30 at 205,25", "-32768 at 190,81"}));
  EXPECT_EQ((Numbers{score, scorePopupsUpper}), (Numbers{32767, 1}));
  drawPopups();
  EXPECT_EQ((Numbers{score, scorePopupsUpper}), (Numbers{32737, 0}));
  score = -2147483600;
  for (i32 i = 0; i < 6; ++i) drawPopups();
  EXPECT_EQ((Numbers{score, scorePopupsUpper}), (Numbers{-2147483647 - 1, -1}));
}

TEST_F(DrawingTest, TickerRunsFromTheRightAndDropsItsLettersWhole) {
  pushMessage("gone!");
  pushMessage("aZ! 09,z");
  EXPECT_EQ(ticker(), "AZ! 09?Z");
  EXPECT_EQ(drawnBy(drawTicker),
            (Names{"A 50x50 at 986,365", "Z 50x50 at 1036,365", "! 50x50 at 1086,365",
                   "Space 50x50 at 1136,365", "0 50x50 at 1186,365", "9 50x50 at 1236,365",
                   "Z 50x50 at 1336,365"}));
  for (i32 i = 2; i < 71; ++i) drawTicker();
  drawn();
  EXPECT_EQ(drawnBy(drawTicker)[0], "A 50x50 at 6,365");
  EXPECT_EQ(drawnBy(drawTicker)[0], "Z 50x50 at 42,365");
  pushMessage(" I");  // the second letter comes to 0 exactly
  for (i32 i = 0; i < 74; ++i) drawTicker();
  EXPECT_EQ(tickerUpper, 0);
  drawTicker();
  EXPECT_EQ(tickerUpper, -1);
  pushMessage(std::string(700, 'x'));
  EXPECT_EQ((Numbers{tickerUpper, tickerLines.back().x}), (Numbers{635, 32750}));
  pushMessage("");
  EXPECT_EQ(tickerUpper, -1);
}

// Lines of the top band, as "text at x,y".
TEST_F(DrawingTest, CountersAndGoalsStandInTheirOrder) {
  const auto noteDrawn = [] {
    std::string all = "draws";
    for (const std::string& line : drawn()) all += " / " + line;
    note(all);
  };
  const Acts acts = {{"counters",
                      [=](const Words& mode) {
                        gameMode = modeTitled(mode[0]);
                        itemStock = {3, 0, 12, 7, 99, 99};
                        drawItems();
                        noteDrawn();
                      }},
                     {"goals", [=](const Words&) { drawGoals(), noteDrawn(); }}};
  playTable("topband", acts);
}

TEST_F(DrawingTest, FrogsThatLeaveStartAgainUntilTheBonusIsOver) {
  frogBonusUntil = gameTick() + 1;
  frogs.assign(20, {1, 1900, 0, 9, 0, 1});
  frogsUpper = 19;
  frogs[0] = {2, 8, 0, 9, 0, 8};      // goes on at the very edge
  frogs[1] = {2, 7, 0, 9, 0, 8};      // leaves by the left edge
  frogs[2] = {2, 300, 762, 9, 0, 7};  // leaves by the bottom
  frogs[3] = {5, 300, 761, 4, 4, 7};  // does not yet, and turns its picture
  fake::draws = {fake::drawOf(1999, 2000), fake::drawOf(3, 2000), fake::drawOf(2, 200)};
  const Names shown = drawnBy(frogParade);
  EXPECT_EQ((Names{shown[0], shown[1]}),
            (Names{"frog02 100x100 at 8,0", "frog01 100x100 at 300,761"}));
  EXPECT_EQ((Numbers{frogs[1].x, frogs[1].y, frogs[2].x, frogs[2].y}), (Numbers{1999, 0, 3, 0}));
  fake::clockNow += 1;  // no sound, no new start
  frogParade();
  EXPECT_EQ(std::to_string(frogs[0].x) + heard(), "-8frog03");
}

TEST_F(DrawingTest, ApplauseMixesClappingByItsDraw) {
  const char* mixes[] = {"1", "2", "3", "12", "13", "23", "231"};
  for (i32 draw = 0; draw < 7; ++draw) {
    fake::draws = {fake::drawOf(draw, 7)};
    applause();
    std::string mix;
    for (const std::string& sound : std::exchange(fake::sounds, {})) {
      EXPECT_EQ(sound.substr(0, 10), "_clapping0");
      mix += sound.back();
    }
    EXPECT_EQ(mix, mixes[draw]);
  }
}

}  // namespace glonks
