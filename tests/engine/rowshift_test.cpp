#include "rules/rowshift.h"

#include "rules/falling.h"
#include "tests/engine/enginetest.h"

namespace glonks {
namespace {

class RowShiftTest : public EngineTest {};

TEST_F(RowShiftTest, RowMovesByOneColumnAndWrapsAround) {
  put(0, 0, "A").expiry = 777;
  put(0, 3, "C");
  put(0, 9, "J");
  cellAt(0, 5).name = "ghost";  // what a free cell still holds is wiped out
  shiftRow(False);
  EXPECT_EQ(field().substr(66), "JA..C.....");
  EXPECT_EQ(cellAt(0, 1).column, 1);
  EXPECT_EQ(cellAt(0, 1).expiry, 777);
  EXPECT_EQ(cellAt(0, 0).column, 0);
  EXPECT_EQ(cellAt(0, 5).name, "");
  shiftRow(True);
  shiftRow(True);
  EXPECT_EQ(field().substr(66), "..C.....JA");
  EXPECT_EQ(cellAt(0, 9).column, 9);
  EXPECT_EQ(fake::sounds, Sounds(3, "_changerow"));
  EXPECT_EQ(fallingPiecesUpper, -1);
}

TEST_F(RowShiftTest, OnlyTheSelectedRowMovesAndAnEmptyOneStillSounds) {
  fillColumn(2, 3);
  selectedRow = 5;
  shiftRow(True);
  EXPECT_EQ(fake::sounds, Sounds{"_changerow"});
  EXPECT_EQ(field().substr(44), "..G......./..G......./..G.......");
  Piece& flying = drop(2);
  selectedRow = 0;
  shiftRow(False);
  EXPECT_EQ(flying.column, 2);
}

TEST_F(RowShiftTest, FullRowKeepsAllTenPieces) {
  for (i16 column = 0; column < columnCount; ++column) {
    put(0, column, std::string(1, static_cast<char>('A' + column)));
  }
  shiftRow(True);
  EXPECT_EQ(field().substr(66), "BCDEFGHIJA");
}

TEST_F(RowShiftTest, StackAboveAGapIsLiftedLowestFirst) {
  // Shifting the second row takes the support from the third and fourth piece, and hangs the
  // second over a free column.
  for (i16 row = 0; row < 4; ++row) put(row, 6, std::string(1, static_cast<char>('A' + row)));
  cellAt(1, 6).velocity = -8;
  cellAt(1, 6).tallied = True;
  cellAt(1, 6).expiry = 4321;
  selectedRow = 1;
  shiftRow(False);
  EXPECT_EQ(field(),
            "........../........../........../........../........../........../......A...");
  ASSERT_EQ(fallingPiecesUpper, 2);
  const char* names[] = {"B", "C", "D"};
  for (std::size_t i = 0; i < 3; ++i) {
    const Piece& piece = fallingPieces[i];
    EXPECT_EQ(piece.name, names[i]);
    EXPECT_EQ(piece.bounces, 4);
    EXPECT_EQ(piece.alive, True);
    EXPECT_EQ(piece.column, i == 0 ? 7 : 6);
    EXPECT_EQ(piece.y, floorOf(static_cast<i16>(i + 1)));
  }
  EXPECT_EQ(fallingPieces[0].velocity, -8);
  EXPECT_EQ(fallingPieces[0].tallied, True);
  EXPECT_EQ(fallingPieces[0].expiry, 4321);
  EXPECT_EQ(cellAt(2, 6).alive, False);

  for (i32 frame = 0; fallingPiecesUpper >= 0 && frame < 200; ++frame) {
    while (fake::draws.size() < 3) fake::queueDraw(0, 3);
    movePieces();
    compactFalling();
  }
  fake::draws.clear();
  EXPECT_EQ(field().substr(44), "......D.../......C.../......AB..");
}

TEST_F(RowShiftTest, BottomRowNeverSettles) {
  put(0, 0);
  put(1, 0);
  settlePieces();
  EXPECT_EQ(fallingPiecesUpper, -1);
}

}  // namespace
}  // namespace glonks
