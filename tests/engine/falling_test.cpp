#include "tests/engine/enginetest.h"

namespace glonks {

class FallingTest : public EngineTest {};

TEST_F(FallingTest, PieceGainsOnePixelAFrameAndBouncesBackBelowItsFloorOnly) {
  const struct {
    i16 y, velocity;
    std::string after;
  } cases[] = {{0, 1, "1 at 2 2 2 0"},        {488, 31, "1 at 2 520 32 0"},
               {489, 31, "1 at 2 520 -24 1"}, {600, 0, "1 at 2 520 -1 1"},
               {600, 1, "1 at 2 520 -2 1"},   {600, 2, "1 at 2 520 -2 1"},
               {600, 5, "1 at 2 520 -4 1"},   {600, -4, "1 at 2 520 2 1"}};
  for (const auto& [y, velocity, after] : cases) {
    renew();
    drop('1', 2, y, velocity);
    if (after.back() == '1') fake::draws = {fake::drawOf(2, 3)};
    movePieces();
    EXPECT_EQ(flight(), after) << y << " " << velocity;
  }
  EXPECT_EQ(heard(), "connect03");
  EXPECT_EQ(fallingPieces[0].landSound, connectSounds[2]);
}

TEST_F(FallingTest, PieceStopsAtItsFifthContactAndCountsForTheLandGoalOnce) {
  const struct {
    const char* before;
    char letter;
    i16 bounces;
    Flag tallied;
    i32 frames;
    const char* state;
    const char* after;
  } cases[] = {{"", 'R', 0, False, 163, "R at 3 520 -8 5", "...R; hears connect01*5; land 4"},
               {"", 'R', 4, False, 31, "R at 3 520 -24 5", "...R; hears connect01; land 4"},
               {"", 'R', 0, True, 163, "R at 3 520 -8 5", "...R; hears connect01*5; land 5"},
               {"", '1', 0, False, 163, "1 at 3 520 -8 5", "...1; hears connect01*5; land 5"},
               {"...2/...2/...2/...2/...2/...2", 'R', 0, False, 26, "R at 3 10 -2 5",
                "...R/...2/...2/...2/...2/...2/...2; hears connect01*5; land 4"}};
  for (const auto& [before, letter, bounces, tallied, frames, state, after] : cases) {
    renew();
    lay(before);
    landOn = True;
    landName = "Rock";
    landLeft = 5;
    drop(letter, 3, 0, 1, bounces).tallied = tallied;
    EXPECT_EQ(fallToRest(), frames) << before;
    const Cell& cell = cellAt(before[0] == 0 ? 0 : 6, 3);
    EXPECT_EQ(stateOf(cell), state);
    EXPECT_EQ(cell.tallied, True);
    EXPECT_EQ(outcome(), after);
  }
}

TEST_F(FallingTest, LaterPieceOfAColumnIsLiftedToTheNewFloorAndFliesOn) {
  drop('1', 5, 519, 3, 4);
  drop('2', 5, 480, -3);
  drop('3', 6);
  fake::draws = {0, 0};  // the floor has risen above the second, in the same frame
  movePieces();
  compactFalling();
  EXPECT_EQ(flight(), "2 at 5 435 2 1, 3 at 6 2 2 0");  // upward before: now down
  EXPECT_EQ(board(), ".....1");
}

TEST_F(FallingTest, PieceFallsThroughAFullColumnAndEndsTheGameUnlessACellIsFreedInTime) {
  const std::string full = ".1/.1/.1/.1/.1/.1/.1";
  lay(full);
  drop('2', 1);
  for (i32 frame = 0; frame < 30; ++frame) movePieces();
  EXPECT_EQ(flight(), "2 at 1 495 31 0");
  cellAt(3, 1).occupied = False;  // below others
  fallToRest();
  EXPECT_EQ(outcome(), ".1/.1/.1/.2/.1/.1/.1; hears connect01*5");
  for (i32 pieces = 0; pieces < 2; ++pieces) drop('1', 1, 519, 4, 4);
  fallToRest();
  EXPECT_EQ(outcome().substr(20), "; hears connect01 gameover connect01 gameover; over -1");
}

TEST_F(FallingTest, BallTakesThePieceOnTopInEachFrameBelowTheFloorAndNeverComesToRest) {
  const struct {
    const char* before;
    i32 frames;
    const char* after;
  } cases[] = {
      {"", 31, ""},  // 2 + 3 + ... pixels: past 520 in the 31st frame
      {"...1/...G/...U", 31,
       "; pops 10 500 0; impacts 3; hears bowling01*2 gorgon02 bowling01 bauble01; queued 3"},
      {"...1/...1/...1/...1/...1/...1/...1", 31, "...1/...1/...1/...1/...1/...1/...1"},
      {"..23/..../...4", 31, "..23//; pops 10; impacts 1; hears bowling01"}};
  for (const auto& [before, frames, after] : cases) {
    renew();
    lay(before);
    drop('W', 3);
    EXPECT_EQ(fallToRest(), frames) << before;
    EXPECT_EQ(outcome(), after) << before;
  }
  lay("...1/...1");
  drop('W', 3, 345, 4);
  drop('W', 3, 519, 1);
  movePieces();
  compactFalling();
  EXPECT_EQ(flight(), "W at 3 350 5 0");  // exactly on its floor
  EXPECT_EQ(board(), "...1");
  EXPECT_EQ((Numbers{impacts.back().x, impacts.back().y}), (Numbers{185, 365}));
}

}  // namespace glonks
