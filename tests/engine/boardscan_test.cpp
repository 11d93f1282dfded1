#include "rules/boardscan.h"

#include "tests/engine/boardtest.h"

namespace glonks {

class TimedPiecesTest : public BoardTest {
 protected:
  // A board on which the timers of one letter have run out.
  static void layDue(const std::string& rows, char due) {
    clearEffects();
    lay(rows);
    for (Row& row : playfield) {
      for (Cell& cell : row.cells) {
        if (cell.occupied == True && letterOf(cell) == due) cell.expiry = 0;
      }
    }
  }
};

TEST_F(TimedPiecesTest, PiecesActOnceTheirTimersHaveRunOut) {
  entryAt(4).bombable = True;  // the Bauble
  const struct {
    const char* before;
    char due;
    std::vector<float> draws;
    const char* after;
  } cases[] = {
      {"BDGCcHUS1", '-', {}, "BDGCcHUS1 |  |  | "},
      {"..D", 'D', {}, "..D |  | 100 | "},
      {"1C", 'C', {0}, "1C |  | 30 | calculate02"},
      {"1c", 'c', {0}, "1c |  | -40 | calculate01"},
      {".3/.U/2", 'U', {}, "2 | 31 | 500 | bauble02"},
      {"4.G", 'G', {0.35F, 0, 0}, "4.G | G3 |  | gorgon01"},
      {"S/1/R1./2B3", 'B', {}, " | 10 S0 | 0 0 10 10 20 10 | pop01"},
      // What a Bomb has taken is gone, though it was due itself or a Slammer.
      {"U/B", 'B', {}, " |  | 0 0 0 | pop01 bauble01"},
      {"C1/1B", 'B', {}, " |  | 0 0 10 30 10 | pop01"},
      // Slams come before Shifters, and one that was slammed shifts its row all the same.
      {"SHS/12.3", 'H', {0}, "12.3 |  | 25 0 0 | slam01 slam01 slam01 changerow"},
  };
  for (const auto& [before, due, draws, after] : cases) {
    fake::draws.assign(draws.begin(), draws.end());
    layDue(before, due);
    if (due == 'B') cellAt(1, 0).expiry = 0;
    scanPieces();
    EXPECT_EQ(outcome(), after) << before;
    EXPECT_TRUE(fake::draws.empty()) << before;
  }
  layDue("BS", 'B');
  cellAt(0, 0).isSlammer = True;  // goes off before it is seen as a Slammer
  scanPieces();
  EXPECT_EQ(outcome(), ".S |  | 0 0 | pop01");
  EXPECT_EQ(pendingSpawns, 3);  // from the Bauble bombed, and none from the one that left by itself
}

TEST_F(TimedPiecesTest, TimersAreDueBelowTheTickAndRunAgainFromThere) {
  lay("C/G");
  Cell& calculator = cellAt(1, 0);
  Cell& gorgon = cellAt(0, 0);
  calculator.expiry = gorgon.expiry = gameTick();
  scanPieces();
  EXPECT_EQ(heard(), "");
  ++fake::clockNow;
  fake::draws = {0.95F, 0.25F, 0.75F, 0.5F};  // column and timer of the new Gorgon
  scanPieces();
  EXPECT_EQ(fallingPieces[0].column, 9);
  EXPECT_EQ((Numbers{fallingPieces[0].expiry, gorgon.expiry, calculator.expiry}),
            (Numbers{1001 + 55000, 1001 + 65000, 1001 + 12000}));
  EXPECT_EQ(stateOf(fallingPieces[0]), "Gorgon 9 0 1 0");
}

TEST_F(TimedPiecesTest, DiamondPaysOnceAlsoWhenItLandsAgain) {
  drop(4, "", 100, 9) = pieceOf('D');
  fallingPieces[0].alive = True;
  fallToRest();
  heard();
  for (i32 i = 0; i < 3; ++i) scanPieces();
  EXPECT_EQ(popups(), "100");
  EXPECT_EQ((Numbers{scorePopups[0].x, scorePopups[0].y}), (Numbers{-70, 450}));
}

TEST_F(TimedPiecesTest, ShiftersMoveTheirRowsInScanOrderAndLeaveThePointer) {
  const struct {
    const char* before;
    std::vector<i16> directions;  // in scan order
    const char* after;
  } cases[] = {{"3H.1", {1}, "H.1......3"},
               {"3H.1", {-1}, ".3H.1"},
               {"H3H", {1, -1}, "H3H"},
               {".2H/H111", {1, -1}, "..2/111H.....H"}};
  for (const auto& [before, directions, after] : cases) {
    layDue(before, 'H');
    selectedRow = 5;
    std::size_t next = 0;
    for (Row& row : playfield) {
      for (Cell& cell : row.cells) {
        if (cell.isShifter == True && cell.occupied == True) cell.direction = directions[next++];
      }
    }
    fake::draws.assign(directions.size(), 0);
    scanPieces();
    EXPECT_EQ(heard(), directions.size() == 1 ? "changerow" : "changerow changerow");
    EXPECT_EQ(selectedRow, 5);
    fallToRest();
    EXPECT_EQ(board(), after) << before;
    heard();
  }
}

TEST_F(TimedPiecesTest, PythagoreanBonusComesOnceWhenCalculatorsHavePaidEnough) {
  const struct {
    i16 before;
    char letter;
    i16 sum;
    i32 paid;
  } cases[] = {{1469, 'C', 1499, 0},
               {1470, 'C', 1500, 2500},
               {1500, 'c', 1460, 0},
               {-32760, 'c', -32768, 0}};
  for (const auto& [before, letter, sum, paid] : cases) {
    layDue(std::string("1") + letter, letter);
    pythagoreanSum = before;
    pythagoreanDone = False;
    fake::draws = {0};
    scanPieces();
    EXPECT_EQ((Numbers{pythagoreanSum, score}), (Numbers{sum, paid})) << before;
    EXPECT_EQ(ticker(), paid == 0 ? "" : "PYTHAGOREAN BONUS!  2500 POINTS");
  }
  pythagoreanDone = True;
  layDue("C", 'C');
  fake::draws = {0};
  scanPieces();
  EXPECT_EQ(pythagoreanSum, -32768);
  EXPECT_EQ(popups(), "30");
}

}  // namespace glonks
