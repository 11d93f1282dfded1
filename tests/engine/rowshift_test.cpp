#include "rules/rowshift.h"

#include "tests/engine/enginetest.h"

namespace glonks {

class RowShiftTest : public EngineTest {};

TEST_F(RowShiftTest, SelectedRowMovesByOneColumnAndWrapsAroundAndWhatHangsIsLiftedLowestFirst) {
  const struct {
    const char* before;
    i16 row;
    Flag toLeft;
    const char* after;
    const char* flight;
  } cases[] = {
      {"1....2...3", 0, False, "31....2; hears changerow", ""},
      {"1....2...3", 0, True, "....2...31; hears changerow", ""},
      {"1234123412", 0, False, "2123412341; hears changerow", ""},
      {"1/2", 5, True, "1/2; hears changerow; row 5", ""},
      {"1/2", 0, True, ".........2; falls 10; hears changerow", "1 at 0 435 0 4"},
      {"1/2", 1, True, "2; falls 19; hears changerow; row 1", "1 at 9 435 0 4"},
      {".4/12/31", 1, False, ".4/.1/31; falls 22; hears changerow; row 1", "2 at 2 435 0 4"},
      {"......4/......3/......2/......1", 1, False,
       "......1; falls 27 36 46; hears changerow; row 1",
       "2 at 7 435 0 4, 3 at 6 350 0 4, 4 at 6 265 0 4"}};
  for (const auto& [before, row, toLeft, after, lifted] : cases) {
    renew();
    lay(before);
    selectedRow = row;
    shiftRow(toLeft);
    EXPECT_EQ(outcome(), after) << before;
    EXPECT_EQ(flight(), lifted) << before;
  }
  fallToRest();
  EXPECT_EQ(board(), "......4/......3/......12");
}

TEST_F(RowShiftTest, PiecesKeepWhatTheyAreAndFreeCellsAreWiped) {
  lay("B/.1", "B");
  Cell& bomb = cellAt(1, 0);
  bomb.velocity = -8;
  bomb.tallied = False;
  bomb.expiry = 77;
  cellAt(0, 6).name = "ghost";
  drop('1', 4);
  shiftRow(False);
  EXPECT_EQ(flight(), "1 at 4 0 1 0, B at 0 435 -8 4");  // those in flight stay
  EXPECT_EQ((Numbers{fallingPieces[1].expiry, fallingPieces[1].tallied, fallingPieces[1].alive}),
            (Numbers{77, False, True}));
  EXPECT_EQ(cellAt(0, 6).name + cellAt(0, 1).name, "");
  EXPECT_EQ(stateOf(cellAt(0, 2)), "1 at 2 520 0 0");
}

}  // namespace glonks
