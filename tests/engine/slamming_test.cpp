#include "rules/slamming.h"

#include "rules/boardscan.h"
#include "tests/engine/boardtest.h"

namespace glonks {

class SlammingTest : public BoardTest {
 protected:
  // Zaps in their order, "h" or "v".
  static std::string zapKinds() {
    std::string kinds;
    for (const Zap& zap : zaps) kinds += zap.horizontal == True ? 'h' : 'v';
    return kinds;
  }
};

TEST_F(SlammingTest, RunsBetweenTwoSlammersGoAndLongOnesPayABonus) {
  const struct {
    const char* before;
    const char* after;
    const char* zaps;
    const char* popups;
    i32 bonus;
  } cases[] = {
      {".S", ".S", "", "", 0},
      {".SS", "", "hh", "0 0", 0},
      {"..S/..S", "", "vv", "0 0", 0},
      {"S2S", "", "hhh", "10 0 0", 0},
      {"..S44S", "", "hhhh", "10 10 0 0", 1200},
      {"S333S", "", "hhhhh", "10 10 10 0 0", 1600},
      {"S11111111S", "", "hhhhhhhhhh", "10 10 10 10 10 10 10 10 0 0", 3600},
      {".S/.2/.2/.2/.2/.2/.S", "", "vvvvvvv", "10 10 10 10 10 0 0", 2400},
      {"SGGS", "", "hhhh", "500 500 0 0", 1200},
      {"SMS", "", "hhh", "0 0", 0},
      {"S1.1S", "S1.1S", "", "", 0},
      {"S.1S", "S.1S", "", "", 0},
      {"S1.S", "S1.S", "", "", 0},
      {"S12S", "S12S", "", "", 0},
      {"SCcS", "SCcS", "", "", 0},
      {"SGHS", "SGHS", "", "", 0},
      {"SRRS", "SRRS", "", "", 0},
      {"S/R/S", "S/R/S", "", "", 0},
      // Runs that share a Slammer or a piece are removed once, and counted as often as found.
      {"S1S2S", "", "hhhhh", "10 0 0 10 0", 2000},
      {"SSS", "", "hhh", "0 0 0", 1200},
      {"RS/S1S/RS", "R/R", "hhhvv", "10 0 0 0 0", 2000},
      {"S2S...S1S", "", "hhhhhh", "10 0 0 10 0 0", 2000},
  };
  for (const auto& [before, after, kinds, points, bonus] : cases) {
    clearEffects();
    lay(before);
    scanPieces();
    fallToRest();
    EXPECT_EQ(board(), after) << before;
    EXPECT_EQ(zapKinds() + " " + popups(), std::string(kinds) + " " + points) << before;
    EXPECT_EQ(score, bonus) << before;
    const std::string line = "SLAM BONUS!   " + std::to_string(bonus) + " POINTS";
    EXPECT_EQ(ticker(), bonus == 0 ? "" : line) << before;
    EXPECT_EQ(std::count(fake::sounds.begin(), fake::sounds.end(), "_slam01"),
              static_cast<i32>(std::strlen(kinds)));
    heard();
  }
}

TEST_F(SlammingTest, ZapsLieOverTheirPiecesAndWhatStoodOnThemDrops) {
  lay(".23/.SSR/3141");
  scanPieces();
  EXPECT_EQ(board(), "...R/3141");
  EXPECT_EQ(falling(), "21 32");
  ASSERT_EQ(zapsUpper, 1);
  EXPECT_EQ((Numbers{zaps[0].x, zaps[0].y, zaps[0].age}), (Numbers{185, 515, 5}));
  EXPECT_EQ(zaps[1].x, 270);
  EXPECT_EQ(heard(), "slam01 slam01");
}

TEST_F(SlammingTest, SlammerThatTheScanHasSeenClosesItsRunThoughItIsGoneAndFreeCellsOpenIt) {
  lay(".1S");
  checkSlams({{0, 0}, {2, 0}}, 1);
  EXPECT_EQ(board() + popups(), "10 0");
  lay("S111S");
  cellAt(0, 2).occupied = False;  // what a free cell still holds doesn't count
  scanPieces();
  EXPECT_EQ(board(), "S1.1S");
  lay("S.");
  checkSlams({{0, 0}, {1, 0}}, 1);
  EXPECT_EQ(board(), "S");
}

}  // namespace glonks
