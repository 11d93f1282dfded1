#include "rules/falling.h"

#include "tests/engine/enginetest.h"

namespace glonks {
namespace {

class FallingTest : public EngineTest {
 protected:
  // Physics until nothing falls any more; gives the number of frames. Contact sounds are 1, 2, 3,
  // 1, 2 ... in turn.
  static i32 fallToRest() {
    i32 frames = 0;
    for (i32 contact = 0; fallingPiecesUpper >= 0 && frames < 1000; ++frames) {
      for (; fake::draws.size() < 4; ++contact) fake::queueDraw(contact % 3, 3);
      movePieces();
      compactFalling();
    }
    fake::draws.clear();
    return frames;
  }
};

TEST_F(FallingTest, FirstFreeRowIsTheSameForEmptyAndFullColumns) {
  for (i16 filled = 0; filled <= rowCount; ++filled) {
    const auto column = static_cast<i16>(filled);
    fillColumn(column, filled);
    EXPECT_EQ(firstFreeRow(column), filled == rowCount ? 0 : filled) << filled;
  }
  cellAt(3, 7).occupied = False;  // a hole counts
  EXPECT_EQ(firstFreeRow(7), 3);
}

TEST_F(FallingTest, PieceGainsOnePixelAFrameAndBouncesBackAtThreeQuarters) {
  struct Case {
    i16 velocity, after;  // before the frame; after the contact
  };
  for (const auto& [velocity, after] : {Case{31, -24},
                                        {1, -2},
                                        {0, -1},
                                        {2, -2},
                                        {5, -4},
                                        {9, -8},
                                        {-4, 2},
                                        {21, -16},
                                        {13, -10}}) {
    fallingPieces.clear();
    fallingPiecesUpper = -1;
    Piece& piece = drop(2);
    piece.y = 600;
    piece.velocity = velocity;
    fake::queueDraw(2, 3);
    movePieces();
    EXPECT_EQ(piece.velocity, after) << velocity;
    EXPECT_EQ(piece.y, 520);
    EXPECT_EQ(piece.bounces, 1);
    EXPECT_EQ(piece.alive, True);
  }
  EXPECT_EQ(fake::sounds, Sounds(9, "_connect03"));

  fallingPieces[0].y = 514;  // exactly on its floor is no contact yet
  fallingPieces[0].velocity = 5;
  movePieces();
  EXPECT_EQ(fallingPieces[0].y, 520);
  EXPECT_EQ(fallingPieces[0].bounces, 1);
}

TEST_F(FallingTest, FreshPieceStopsAtItsFifthContact) {
  drop(3).name = "Rock";
  const i32 frames = fallToRest();
  EXPECT_EQ(field(),
            "........../........../........../........../........../........../...R......");
  EXPECT_EQ(cellAt(0, 3).y, 520);
  EXPECT_EQ(cellAt(0, 3).velocity, -8);
  EXPECT_EQ(cellAt(0, 3).bounces, 5);
  EXPECT_EQ(cellAt(0, 3).tallied, True);
  EXPECT_EQ(fake::sounds,
            (Sounds{"_connect01", "_connect02", "_connect03", "_connect01", "_connect02"}));
  EXPECT_EQ(frames, 163);

  fillColumn(6, 6);
  drop(6).name = "Rock";
  fallToRest();
  EXPECT_EQ(cellAt(6, 6).name, "Rock");
  EXPECT_EQ(cellAt(6, 6).y, 10);
  EXPECT_EQ(cellAt(6, 6).velocity, -2);
}

TEST_F(FallingTest, LaterPieceOfAColumnIsLiftedToTheNewFloor) {
  drop(5).name = "First";
  Piece& second = drop(5);
  second.name = "Second";
  second.y = 480;
  second.velocity = -3;
  Piece& first = fallingPieces[0];
  first.y = 519;
  first.velocity = 3;
  first.bounces = 4;
  fake::queueDraw(0, 3);  // the first's contact
  fake::queueDraw(1, 3);  // the second's: the floor has risen above it, in the same frame
  movePieces();
  EXPECT_EQ(cellAt(0, 5).name, "First");
  EXPECT_EQ(fallingPieces[1].y, 435);
  EXPECT_EQ(fallingPieces[1].velocity, 2);  // it moved upward: the reversal sends it down
  compactFalling();
  ASSERT_EQ(fallingPiecesUpper, 0);
  EXPECT_EQ(fallingPieces[0].name, "Second");
}

TEST_F(FallingTest, SettlingPieceStopsAtItsFirstContact) {
  Piece& piece = drop(0);
  piece.bounces = 4;
  piece.y = 435;
  piece.velocity = -8;
  fallToRest();
  EXPECT_EQ(cellAt(0, 0).occupied, True);
  EXPECT_EQ(fake::sounds.size(), 1U);
}

TEST_F(FallingTest, FullColumnEndsTheGameForEachPieceThatFindsIt) {
  fillColumn(9, 7);
  drop(9);
  drop(9);
  for (Piece& piece : fallingPieces) {
    piece.y = 519;
    piece.velocity = 4;
    piece.bounces = 4;
  }
  fake::queueDraw(0, 3);
  fake::queueDraw(0, 3);
  movePieces();
  EXPECT_EQ(gameOver, True);
  EXPECT_EQ(fake::sounds, (Sounds{"_connect01", "_gameover", "_connect01", "_gameover"}));
  compactFalling();
  EXPECT_EQ(fallingPiecesUpper, -1);
}

TEST_F(FallingTest, PieceFallsThroughAFullColumnAndLandsIfACellIsFreedInTime) {
  fillColumn(9, 7);
  drop(9).name = "Late";
  for (i32 frame = 0; frame < 30; ++frame) movePieces();
  EXPECT_GT(fallingPieces[0].y, 400);
  cellAt(6, 9).occupied = False;
  fallToRest();
  EXPECT_EQ(gameOver, False);
  EXPECT_EQ(cellAt(6, 9).name, "Late");
  EXPECT_EQ(cellAt(6, 9).y, 10);
}

TEST_F(FallingTest, FirstLandingCountsForTheLandGoal) {
  struct Case {
    const char* name;
    Flag on, tallied;
    i16 left;
  };
  for (const auto& [name, on, tallied, left] : {Case{"Gorgon", True, False, 4},
                                                {"Gorgon", True, True, 5},
                                                {"Rock", True, False, 5},
                                                {"Gorgon", False, False, 5}}) {
    resetModel();
    landOn = on;
    landName = "Gorgon";
    landLeft = 5;
    drop(1, name).tallied = tallied;
    landPiece(0, 1);
    EXPECT_EQ(landLeft, left) << name << on << tallied;
    EXPECT_EQ(cellAt(0, 1).tallied, True);
  }
}

TEST_F(FallingTest, BowlingBallNeverComesToRest) {
  drop(4, "Bowling Ball").isBowlingBall = True;
  i32 frames = 0;
  for (; fallingPiecesUpper >= 0 && frames < 100; ++frames) {
    movePieces();
    compactFalling();
  }
  EXPECT_EQ(frames, 31);  // 2 + 3 + ... pixels: past 520 in the 31st frame
  EXPECT_EQ(field().find('B'), std::string::npos);
  EXPECT_TRUE(fake::sounds.empty());
}

TEST_F(FallingTest, CompactionKeepsTheOrder) {
  for (const char* name : {"a", "b", "c", "d"}) drop(0, name);
  fallingPieces[0].alive = False;
  fallingPieces[2].alive = False;
  compactFalling();
  ASSERT_EQ(fallingPiecesUpper, 1);
  EXPECT_EQ(fallingPieces[0].name, "b");
  EXPECT_EQ(fallingPieces[1].name, "d");
}

}  // namespace
}  // namespace glonks
