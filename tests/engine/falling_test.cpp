#include "tests/engine/enginetest.h"

namespace glonks {

class FallingTest : public EngineTest {};

TEST_F(FallingTest, PieceGainsOnePixelAFrameAndBouncesBackAtThreeQuarters) {
  Piece& piece = drop(2);
  const std::pair<i16, i16> velocities[] = {{31, -24}, {1, -2}, {5, -4}, {0, -1}, {-4, 2}};
  for (const auto& [before, after] : velocities) {
    piece.y = 600;
    piece.velocity = before;
    piece.bounces = 0;
    fake::queueDraw(2, 3);
    movePieces();
    EXPECT_EQ(stateOf(piece), "Glonk 2 520 " + std::to_string(after) + " 1") << before;
  }
  EXPECT_EQ(fake::sounds, Names(5, "_connect03"));
}

TEST_F(FallingTest, FreshPieceStopsAtItsFifthContactAndCountsForTheLandGoal) {
  landOn = True;
  landName = "Rock";
  landLeft = 5;
  drop(3, "Rock");
  EXPECT_EQ(fallToRest(), 163);
  EXPECT_EQ(field(), "/...R......");
  EXPECT_EQ(stateOf(cellAt(0, 3)), "Rock 3 520 -8 5");
  EXPECT_EQ(cellAt(0, 3).tallied, True);
  EXPECT_EQ(fake::sounds,
            (Names{"_connect01", "_connect02", "_connect03", "_connect01", "_connect02"}));
  for (i16 row = 0; row < 6; ++row) put(row, 6);
  drop(6, "Rock").tallied = True;
  drop(7, "Other");
  fallToRest();
  EXPECT_EQ(stateOf(cellAt(6, 6)), "Rock 6 10 -2 5");
  EXPECT_EQ(landLeft, 4);  // only the first has come to rest for the first time
}

TEST_F(FallingTest, LaterPieceOfAColumnIsLiftedToTheNewFloorAndFliesOn) {
  drop(5, "First", 519, 3, 4);
  drop(5, "Second", 480, -3);
  fake::queueDraw(0, 3);  // the first's contact
  fake::queueDraw(1, 3);  // the second's: the floor has risen above it, in the same frame
  movePieces();
  compactFalling();
  EXPECT_EQ(field(), "/.....F....");
  ASSERT_EQ(fallingPiecesUpper, 0);
  EXPECT_EQ(stateOf(fallingPieces[0]), "Second 5 435 2 1");  // upward before: now down
}

TEST_F(FallingTest, PieceFallsThroughAFullColumnAndEndsTheGameUnlessACellIsFreedInTime) {
  for (i16 row = 0; row < rowCount; ++row) put(row, 9);
  drop(9, "Late");
  for (i32 passed = 0; passed < 30; ++passed) movePieces();
  EXPECT_EQ(stateOf(fallingPieces[0]), "Late 9 495 31 0");
  cellAt(3, 9).occupied = False;  // below others
  fallToRest();
  EXPECT_EQ(stateOf(cellAt(3, 9)).substr(0, 10), "Late 9 265");
  fake::sounds.clear();
  for (i32 pieces = 0; pieces < 2; ++pieces) drop(9, "Glonk", 519, 4, 4);
  fallToRest();
  EXPECT_EQ(gameOver, True);
  EXPECT_EQ(fake::sounds, (Names{"_connect01", "_gameover", "_connect02", "_gameover"}));
}

TEST_F(FallingTest, BowlingBallNeverComesToRest) {
  drop(4, "Bowling Ball").isBowlingBall = True;
  EXPECT_EQ(fallToRest(), 31);  // 2 + 3 + ... pixels: past 520 in the 31st frame
  EXPECT_EQ(field(), "");
}

}  // namespace glonks
