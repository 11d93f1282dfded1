#include "rules/generation.h"

#include "game/catalogue.h"
#include "game/errors.h"
#include "rules/timer.h"
#include "tests/engine/enginetest.h"

namespace glonks {
namespace {

class GenerationTest : public EngineTest {
 protected:
  GenerationTest() { pieceCatalogUpper = 18; }

  static Piece& entry(i16 slot, const std::string& name, i16 low, i16 high) {
    Piece& piece = pieceCatalog[static_cast<std::size_t>(slot)];
    piece.name = name;
    piece.imageIndex = slot;
    piece.spawnLow = low;
    piece.spawnHigh = high;
    return piece;
  }

  // Spawns with the given draw of the kind and column 6 behind it; further draws are queued before.
  static const Piece& spawn(i32 draw) {
    fake::draws.push_front(fake::drawFor(6, columnCount));
    fake::draws.push_front(fake::drawFor(draw, 1000));
    spawnPiece();
    return fallingPieces.back();
  }
};

TEST_F(GenerationTest, DrawPicksTheHighestSlotWhoseRangeHoldsIt) {
  entry(2, "Two", 1, 499);
  entry(3, "Three", 400, 499);
  entry(4, "Never", 700, 600);
  entry(5, "Rest", 500, 999);
  entry(0, "Unnamed", 0, 0);
  entry(18, "Zero", 0, 0);
  struct Case {
    i32 draw;
    const char* name;
  };
  for (const auto& [draw, name] : {Case{1, "Two"},
                                   {399, "Two"},
                                   {400, "Three"},
                                   {499, "Three"},
                                   {500, "Rest"},
                                   {650, "Rest"},
                                   {999, "Rest"},
                                   {0, "Zero"}}) {
    const Piece& piece = spawn(draw);
    EXPECT_EQ(piece.name, name) << draw;
    EXPECT_EQ(piece.alive, True);
    EXPECT_EQ(piece.column, 6);
    EXPECT_EQ(piece.y, 0);
    EXPECT_EQ(piece.velocity, 1);
    EXPECT_EQ(piece.bounces, 0);
    EXPECT_EQ(piece.expiry, 0);
  }
  EXPECT_EQ(fallingPiecesUpper, 7);
  EXPECT_EQ(fake::seedings, 8);  // each spawn seeds anew
}

TEST_F(GenerationTest, TimedKindsAreArmedAfterTheColumn) {
  const std::pair<const char*, Flag Piece::*> kinds[] = {{"Bomb", &Piece::isBomb},
                                                         {"Bauble", &Piece::isBauble},
                                                         {"Gorgon", &Piece::isGorgon},
                                                         {"Shifter", &Piece::isShifter},
                                                         {"Calculator", &Piece::isCalculator}};
  for (const auto& [name, flag] : kinds) {
    Piece& kind = entry(1, name, 0, 999);
    kind.timerMin = 7000;
    kind.timerMax = 9000;
    kind.*flag = True;
    fake::queueDraw(1500, 2000);
    if (flag == &Piece::isShifter) fake::queueDraw(1, 2);
    if (flag == &Piece::isCalculator) fake::queueDraw(150, 200);
    EXPECT_EQ(spawn(5).expiry, 1000 + 7000 + 1500) << name;
    kind.*flag = False;
  }
  entry(1, "Diamond", 0, 999).isDiamond = True;
  EXPECT_EQ(spawn(5).expiry, 0);
}

TEST_F(GenerationTest, TimerMayBeOfOneLengthOnlyAndNeverLeavesItsWidth) {
  Piece piece;
  piece.timerMin = piece.timerMax = 12000;
  fake::draws.push_back(0.99F);
  armTimer(piece);
  EXPECT_EQ(piece.expiry, 13000);
  piece.timerMin = piece.timerMax = 2147483647;
  fake::draws.push_back(0.99F);
  armTimer(piece);
  EXPECT_EQ(piece.expiry, 2147483647);
}

TEST_F(GenerationTest, ShifterDrawsItsDirection) {
  Piece& kind = entry(1, "Shifter", 0, 999);
  kind.isShifter = True;
  for (const i32 draw : {0, 1}) {
    fake::queueDraw(0, 1);
    fake::queueDraw(draw, 2);
    EXPECT_EQ(spawn(5).direction, draw == 0 ? -1 : 1);
  }
}

TEST_F(GenerationTest, CalculatorDrawsItsValue) {
  Piece& kind = entry(6, "Calculator", 0, 999);
  kind.isCalculator = True;
  kind.variety = 0;
  struct Case {
    i32 draw;
    Flag done;
    i32 value;
    i16 image, variety;
  };
  for (const auto& [draw, done, value, image, variety] : {Case{0, False, -100, 19, -1},
                                                          {99, False, -1, 19, -1},
                                                          {100, False, 1, 6, 0},
                                                          {199, False, 99, 6, 0},
                                                          {0, True, 1, 6, 0},
                                                          {199, True, 199, 6, 0}}) {
    pythagoreanDone = done;
    fake::queueDraw(0, 1);
    fake::queueDraw(draw, 200);
    const Piece& piece = spawn(5);
    EXPECT_EQ(piece.value, value) << draw << done;
    EXPECT_EQ(piece.imageIndex, image) << draw << done;
    EXPECT_EQ(piece.variety, variety) << draw << done;
  }
}

TEST_F(GenerationTest, BallDrawnForAFullColumnHitsItsTopAtOnce) {
  entry(9, "Bowling Ball", 0, 999).isBowlingBall = True;
  fillColumn(6, 6);
  spawn(5);
  EXPECT_TRUE(fake::sounds.empty());
  fillColumn(6, 7);
  spawn(5);
  EXPECT_EQ(fake::sounds, Sounds{"_bowling01"});
}

TEST_F(GenerationTest, MusicNoteIgnoresTheRanges) {
  EXPECT_THROW(slotNamed("Music"), RuntimeError);
  entry(11, "Music", 700, 600);
  entry(12, "Music", 0, 999).variety = 1;
  fake::queueDraw(4, 10);
  spawnMusicNote();
  const Piece& note = fallingPieces.back();
  EXPECT_EQ(note.imageIndex, 11);
  EXPECT_EQ(note.column, 4);
  EXPECT_EQ(note.alive, True);
  EXPECT_EQ(note.velocity, 1);
  EXPECT_EQ(fake::seedings, 0);
}

}  // namespace
}  // namespace glonks
