#include "rules/generation.h"

#include "tests/engine/enginetest.h"

namespace glonks {

class GenerationTest : public EngineTest {
 protected:
  GenerationTest() { pieceCatalogUpper = 18; }

  static Piece& entry(i16 slot, const std::string& name, i16 low = 0, i16 high = 999) {
    Piece& piece = entryAt(slot);
    piece.name = name;
    piece.imageIndex = slot;
    piece.spawnLow = low;
    piece.spawnHigh = high;
    return piece;
  }

  // Spawns with a draw of the kind, column 6 and further draws.
  static const Piece& spawn(i32 draw, const std::vector<float>& more = {}) {
    fake::queueDraw(draw, 1000);
    fake::queueDraw(6, columnCount);
    fake::draws.insert(fake::draws.end(), more.begin(), more.end());
    spawnPiece();
    return fallingPieces.back();
  }
};

TEST_F(GenerationTest, DrawPicksTheHighestSlotWhoseRangeHoldsIt) {
  entry(2, "Two", 1, 499);
  entry(3, "Three", 400, 499);
  entry(11, "Music", 700, 600);  // never drawn so
  entry(5, "Rest", 500, 999);
  entry(18, "Zero", 0, 0);
  const std::pair<i32, std::string> cases[] = {{0, "Zero"},    {1, "Two"},    {399, "Two"},
                                               {400, "Three"}, {500, "Rest"}, {999, "Rest"}};
  for (const auto& [draw, name] : cases) {
    EXPECT_EQ(stateOf(spawn(draw)), name + " 6 0 1 0") << draw;
  }
  entry(12, "Music").variety = 1;
  fake::queueDraw(4, 10);
  dropNamed("Music");
  EXPECT_EQ(stateOf(fallingPieces.back()), "Music 4 0 1 0");
  EXPECT_EQ(fallingPieces.back().imageIndex, 11);
  compactFalling();
  EXPECT_EQ(fallingPiecesUpper, 6);  // all alive
  EXPECT_EQ(fake::seedings, 6);      // each spawn seeds anew
}

TEST_F(GenerationTest, TimedKindsAreArmedAfterTheColumn) {
  Piece& kind = entry(1, "Kind");
  kind.timerMin = 7000;
  kind.timerMax = 9000;
  for (const auto flag : {&Piece::isBomb, &Piece::isBauble, &Piece::isGorgon}) {
    kind.*flag = True;
    EXPECT_EQ(spawn(5, {0.75F}).expiry, 1000 + 7000 + 1500);
    kind.*flag = False;
  }
  kind.isShifter = True;
  EXPECT_EQ(spawn(5, {0.75F, 0.4F}).direction, -1);
  EXPECT_EQ(spawn(5, {0.75F, 0.6F}).direction, 1);
}

TEST_F(GenerationTest, CalculatorDrawsItsValueBehindItsTimer) {
  entry(6, "Calculator").isCalculator = True;
  const auto calculator = [](i32 draw) {
    const Piece& piece = spawn(5, {0, fake::drawFor(draw, 200)});
    return Numbers{piece.value, piece.imageIndex, piece.variety};
  };
  EXPECT_EQ(calculator(0), (Numbers{-100, 19, -1}));
  EXPECT_EQ(calculator(100), (Numbers{1, 6, 0}));
  EXPECT_EQ(calculator(199), (Numbers{99, 6, 0}));
  pythagoreanDone = True;
  EXPECT_EQ(calculator(199), (Numbers{199, 6, 0}));
}

TEST_F(GenerationTest, BallDrawnForAFullColumnHitsItsTopAtOnce) {
  entry(9, "Bowling Ball").isBowlingBall = True;
  for (i16 row = 0; row < rowCount; ++row) put(row, 6);
  spawn(5);
  cellAt(6, 6).occupied = False;
  spawn(5);
  EXPECT_EQ(fake::sounds, Names{"_bowling01"});
}

}  // namespace glonks
