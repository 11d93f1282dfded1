#include "rules/boardscan.h"

#include "rules/slamming.h"
#include "tests/engine/enginetest.h"

namespace glonks {

class BoardScanTest : public EngineTest {
 protected:
  static void scan(const std::string& before, const std::string& due = "",
                   const Draws& draws = {}) {
    renew();
    lay(before, due);
    fake::draws = draws;
    scanPieces();
    EXPECT_TRUE(fake::draws.empty()) << before;
  }
};

TEST_F(BoardScanTest, PiecesActOnceTheirTimersHaveRunOut) {
  const struct {
    const char* before;
    const char* due;
    Draws draws;
    const char* after;
  } cases[] = {
      {"BDGCcHUS1", "", {}, "BDGCcHUS1"},
      {"BDGCcHUS1", "1S", {}, "BDGCcHUS1"},
      {"..D", "D", {}, "..D; pops 100"},
      {"1C", "C", {0}, "1C; pops 30; hears calculate02; sum 30"},
      {"1c", "c", {0}, "1c; pops -40; hears calculate01; sum -40"},
      {".3/.U/2", "U", {}, "2; falls 31; pops 500; hears bauble02"},
      {"4.G", "G", {0.35, 0, 0}, "4.G; falls G3; hears gorgon01"},
      {"S/1/R1./2B3", "B", {}, "; falls 10 S0; pops 0 0 10 10 20 10; impacts 1; hears pop01"},
      // What a Bomb has taken is gone, though it was due itself or a Slammer.
      {"U/B", "UB", {}, "; pops 0 0 0; impacts 1; hears pop01 bauble01; queued 3"},
      {"C1/1B", "CB", {}, "; pops 0 0 10 30 10; impacts 1; hears pop01"},
      {"B/B", "B", {}, "; pops 0 0 0; impacts 1; hears pop01"},
      // One that a scan has passed goes off by its own time, one that hangs is lifted first.
      {"1/U/B", "U", {}, "B; falls 10; pops 500; hears bauble02"},
      // Slams come before Shifters, and one that was slammed shifts its row all the same.
      {"SHS/12.3", "H", {0}, "12.3; pops 25 0 0; zaps hhh; hears slam01*3 changerow"},
  };
  for (const auto& [before, due, draws, after] : cases) {
    scan(before, due, draws);
    EXPECT_EQ(outcome(), after) << before;
  }
  renew();
  lay("BS", "B");
  cellAt(0, 0).isSlammer = True;  // goes off before it is seen as a Slammer
  scanPieces();
  EXPECT_EQ(outcome(), ".S; pops 0 0; impacts 1; hears pop01");
}

TEST_F(BoardScanTest, TimersAreDueBelowTheTickAndRunAgainFromThere) {
  lay("C/G/H");
  Cell* const cells[] = {&cellAt(2, 0), &cellAt(1, 0), &cellAt(0, 0)};
  for (Cell* cell : cells) cell->expiry = gameTick();
  scanPieces();
  EXPECT_EQ(outcome(), "C/G/H");
  ++fake::clockNow;
  // Shifter, column and timer of the new Gorgon, old Gorgon, Calculator.
  fake::draws = {0.5, 0.95, 0.25, 0.75, 0.5};
  cells[2]->direction = 1;
  scanPieces();
  EXPECT_EQ(stateOf(fallingPieces[0]) + stateOf(fallingPieces[1]), "G at 9 0 1 0G at 0 435 0 4");
  EXPECT_EQ((Numbers{fallingPieces[0].expiry, fallingPieces[1].expiry, fallingPieces[2].expiry,
                     cellAt(0, 9).expiry}),
            (Numbers{1001 + 55000, 1001 + 65000, 1001 + 12000, 1001 + 8000}));
}

TEST_F(BoardScanTest, DiamondPaysOnceAlsoWhenItLandsAgainAndBombsActWhenTheyLand) {
  drop('D', 4, 100, 9);
  drop('B', 5, 100, 9).expiry = 5;
  fallToRest();
  heard();
  for (i32 i = 0; i < 3; ++i) scanPieces();
  EXPECT_EQ(outcome(), "....D; pops 100 0 0; impacts 1; hears pop01");
  EXPECT_EQ((Numbers{scorePopups[0].x, scorePopups[0].y}), (Numbers{270, 450}));
}

TEST_F(BoardScanTest, ShiftersMoveTheirRowsInScanOrderAndLeaveThePointer) {
  const struct {
    const char* before;
    std::vector<i16> directions;  // in scan order
    const char* after;
  } cases[] = {{"3H.1", {1}, "H.1......3"},
               {"3H.1", {-1}, ".3H.1"},
               {"H3H", {1, -1}, "H3H"},
               {".2H/H111", {1, -1}, "..2/111H.....H"}};
  for (const auto& [before, directions, after] : cases) {
    renew();
    lay(before, "H");
    selectedRow = 5;
    std::size_t next = 0;
    for (Row& row : playfield) {
      for (Cell& cell : row.cells) {
        if (cell.isShifter == True) cell.direction = directions[next++];
      }
    }
    fake::draws.assign(next, 0);
    scanPieces();
    fallToRest();
    EXPECT_EQ(board() + std::to_string(selectedRow), std::string(after) + "5") << before;
  }
}

TEST_F(BoardScanTest, PythagoreanBonusComesOnceWhenCalculatorsHavePaidEnough) {
  const struct {
    i16 sum;
    Flag done;
    char letter;
    const char* after;
  } cases[] = {{1469, False, 'C', "; hears calculate02; sum 1499"},
               {1470, False, 'C',
                "; hears calculate02; says PYTHAGOREAN BONUS!  2500 POINTS; score 2500; sum 1500"},
               {1500, False, 'c', "; hears calculate01; sum 1460"},
               {1470, True, 'C', "; hears calculate02; sum 1470"},
               {-32760, False, 'c', "; hears calculate01; sum -32768"}};
  for (const auto& [sum, done, letter, after] : cases) {
    renew();
    lay(std::string(1, letter), std::string(1, letter));
    pythagoreanSum = sum;
    pythagoreanDone = done;
    fake::draws = {0};
    scanPieces();
    const bool paid = score > 0;
    EXPECT_EQ(pythagoreanDone, flagOf(paid || done == True));
    EXPECT_EQ(outcome(), std::string(letter == 'C' ? "C; pops 30" : "c; pops -40") + after);
  }
}

TEST_F(BoardScanTest, RunsBetweenTwoSlammersGoAndLongOnesPayABonus) {
  const struct {
    const char* before;
    const char* after;  // with "=" nothing happens
    i32 bonus;
  } cases[] = {
      {".S", "=", 0},
      {".SS", "; pops 0 0; zaps hh", 0},
      {"..S/..S", "; pops 0 0; zaps vv", 0},
      {"S2S", "; pops 10 0 0; zaps hhh", 0},
      {"..S44S", "; pops 10 10 0 0; zaps hhhh", 1200},
      {"S333S", "; pops 10 10 10 0 0; zaps hhhhh", 1600},
      {"S11111111S", "; pops 10 10 10 10 10 10 10 10 0 0; zaps hhhhhhhhhh", 3600},
      {".S/.2/.2/.2/.2/.2/.S", "; pops 10 10 10 10 10 0 0; zaps vvvvvvv", 2400},
      {"SUUS", "; pops 0 0 0 0; zaps hhhh", 1200},
      {"S1.1S", "=", 0},
      {"S.1S", "=", 0},
      {"S1.S", "=", 0},
      {"S12S", "=", 0},
      {"SCcS", "=", 0},
      {"SGHS", "=", 0},
      {"SRRS", "=", 0},
      {"S/R/S", "=", 0},
      {"S/1/2/S", "=", 0},
      // Runs that share a Slammer or a piece are removed once, and counted as often as found.
      {"S1S2S", "; pops 10 0 0 10 0; zaps hhhhh", 2000},
      {"SSS", "; pops 0 0 0; zaps hhh", 1200},
      {"RS/S1S/RS", "R; falls R0; pops 10 0 0 0 0; zaps hhhvv", 2000},
      {"S2S...S1S", "; pops 10 0 0 10 0 0; zaps hhhhhh", 2000},
  };
  for (const auto& [before, after, bonus] : cases) {
    scan(before);
    const auto slams = std::count(fake::sounds.begin(), fake::sounds.end(), "_slam01");
    EXPECT_EQ(slams, zapsUpper + 1) << before;
    heard();
    pendingSpawns = 0;
    const std::string points = std::to_string(bonus);
    const std::string words = "; says SLAM BONUS!   " + points + " POINTS; score " + points;
    EXPECT_EQ(outcome(), (*after == '=' ? before : after) + (bonus == 0 ? "" : words)) << before;
  }
}

TEST_F(BoardScanTest, ZapsLieOverTheirPiecesAndWhatStoodOnThemDrops) {
  scan(".23/.SSR/3141");
  EXPECT_EQ(outcome(), "...R/3141; falls 21 32; pops 0 0; zaps hh; hears slam01*2");
  EXPECT_EQ((Numbers{zaps[0].x, zaps[0].y, zaps[0].age, zaps[1].x}), (Numbers{185, 515, 5, 270}));
}

TEST_F(BoardScanTest, SlammerThatTheScanHasSeenClosesItsRunThoughItIsGoneAndFreeCellsOpenIt) {
  lay(".1S");
  checkSlams({{0, 0}, {2, 0}}, 1);
  EXPECT_EQ(outcome(), "; pops 10 0; zaps hh; hears slam01*2");
  renew();
  lay("S111S");
  cellAt(0, 2).occupied = False;  // what a free cell still holds doesn't count
  scanPieces();
  lay("S");
  checkSlams({{0, 0}, {1, 0}}, 1);
  EXPECT_EQ(outcome(), "S");
}

}  // namespace glonks
