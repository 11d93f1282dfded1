#include "rules/rowshift.h"

#include "tests/engine/enginetest.h"

namespace glonks {

class RowShiftTest : public EngineTest {};

TEST_F(RowShiftTest, SelectedRowAloneMovesByOneColumnAndWrapsAround) {
  for (const char* name : {"A", "E", "J"}) put(0, static_cast<i16>(name[0] - 'A'), name);
  put(1, 4);
  cellAt(0, 6).name = "ghost";  // what a free cell still holds is wiped out
  drop(4);
  shiftRow(False);
  EXPECT_EQ(field(), "/JA...E....");
  EXPECT_EQ(stateOf(cellAt(0, 0)), "J 0 520 0 0");
  EXPECT_EQ(stateOf(cellAt(0, 1)), "A 1 520 0 0");
  EXPECT_EQ(cellAt(0, 6).name, "");
  EXPECT_EQ(stateOf(fallingPieces[0]), "Glonk 4 0 1 0");
  EXPECT_EQ(stateOf(fallingPieces[1]), "Glonk 4 435 0 4");  // hung over a free cell
  shiftRow(True);
  shiftRow(True);
  selectedRow = 5;
  shiftRow(True);
  EXPECT_EQ(field(), "/...E....JA");
  EXPECT_EQ(fake::sounds, Names(4, "_changerow"));  // for an empty row too
}

TEST_F(RowShiftTest, StackAboveAGapIsLiftedLowestFirstAndPiecesKeepWhatTheyAre) {
  // Shifting the second row takes the support from the third and fourth piece, and hangs the
  // second over a free column.
  for (const char* name : {"A", "B", "C", "D"}) put(static_cast<i16>(name[0] - 'A'), 6, name);
  cellAt(1, 6).velocity = -8;
  selectedRow = 1;
  shiftRow(False);
  EXPECT_EQ(field(), "/......A...");
  ASSERT_EQ(fallingPiecesUpper, 2);
  EXPECT_EQ(stateOf(fallingPieces[0]), "B 7 435 -8 4");
  EXPECT_EQ(stateOf(fallingPieces[1]), "C 6 350 0 4");
  EXPECT_EQ(stateOf(fallingPieces[2]), "D 6 265 0 4");
  fallToRest();
  EXPECT_EQ(field(), "/......D.../......C.../......AB..");
}

}  // namespace glonks
