#include "rules/generation.h"

#include "rules/boardscan.h"
#include "rules/items.h"
#include "tests/engine/enginetest.h"

namespace glonks {

class GenerationTest : public EngineTest {
 protected:
  // The only kind that is drawn.
  static void levelOf(char letter) {
    for (Piece& entry : pieceCatalog) entry.spawnLow = 1, entry.spawnHigh = 0;
    entryOf(letter).spawnHigh = 999;
  }

  // Spawns into column 6, with further draws behind the column's.
  static const Piece& spawn(i32 draw, const Draws& more = {}) {
    fake::draws = {fake::drawOf(draw, 1000), 0.6};
    fake::draws.insert(fake::draws.end(), more.begin(), more.end());
    spawnPiece();
    EXPECT_TRUE(fake::draws.empty());
    return fallingPieces.back();
  }
};

TEST_F(GenerationTest, DrawPicksTheHighestSlotWhoseRangeHoldsIt) {
  // Slots are those of the game's own catalogue.
  const std::pair<char, std::pair<i16, i16>> level[] = {
      {'1', {1, 499}}, {'2', {400, 499}}, {'N', {700, 600}}, {'R', {500, 999}}};
  for (const auto& [letter, range] : level) {
    std::tie(entryOf(letter).spawnLow, entryOf(letter).spawnHigh) = range;
  }
  const bool later = &entryOf('2') > &entryOf('1');
  const std::pair<i32, char> cases[] = {
      {1, '1'},   {399, '1'}, {400, later ? '2' : '1'}, {499, later ? '2' : '1'},
      {500, 'R'}, {999, 'R'}};
  for (const auto& [draw, letter] : cases) {
    EXPECT_EQ(stateOf(spawn(draw)), std::string(1, letter) + " at 6 0 1 0") << draw;
  }
  EXPECT_EQ(fake::seedings, 6);
  // A slot without a range has 0 to 0.
  spawn(0);
  EXPECT_EQ(fallingPieces.back().imageIndex, 18);
  EXPECT_EQ(fallingPiecesUpper, 6);
}

TEST_F(GenerationTest, TimedKindsAreArmedAfterTheColumnAndDrawWhatElseTheyNeed) {
  const struct {
    char letter;
    Draws draws;
    i32 expiry, direction, value, image;
  } cases[] = {{'1', {}, 0, 0, 10, 0},
               {'S', {}, 0, 0, 0, 0},
               {'D', {}, 0, 0, 0, 0},
               {'B', {0.75}, 32500, 0, 0, 0},
               {'U', {0.75}, 105000, 0, 0, 0},
               {'G', {0.75}, 65000, 0, 500, 0},
               {'H', {0.75, 0.4}, 8500, -1, 25, 0},
               {'H', {0.75, 0.6}, 8500, 1, 25, 0},
               {'C', {0.75, fake::drawOf(0, 200)}, 12500, 0, -100, 19},
               {'C', {0.75, fake::drawOf(99, 200)}, 12500, 0, -1, 19},
               {'C', {0.75, fake::drawOf(100, 200)}, 12500, 0, 1, 0},
               {'C', {0.75, fake::drawOf(199, 200)}, 12500, 0, 99, 0}};
  for (const auto& [letter, draws, expiry, direction, value, image] : cases) {
    levelOf(letter);
    const Piece& piece = spawn(5, draws);
    EXPECT_EQ((Numbers{piece.expiry, piece.direction, piece.value}),
              (Numbers{expiry == 0 ? 0 : expiry + 1000, direction, value}))
        << letter;
    EXPECT_EQ(piece.imageIndex, image == 0 ? entryOf(letter).imageIndex : image);
    EXPECT_EQ(piece.variety, image == 0 ? entryOf(letter).variety : -1);
  }
  pythagoreanDone = True;
  for (const i32 draw : {0, 1, 199}) {
    EXPECT_EQ(spawn(5, {0, fake::drawOf(draw, 200)}).value, std::max(draw, 1));
  }
}

TEST_F(GenerationTest, PiecesFromOutsideTheDrawComeWithoutSeedingAndTheirTimersArmed) {
  const struct {
    void (*act)();
    Draws draws;
    const char* state;
    i32 expiry;
  } cases[] = {{[] { dropNamed("Music"); }, {0.45}, "N at 4 0 1 0", 0},
               {[] { dropItem("Slammer"); }, {0.75, 0.5}, "S at 7 0 1 0", 1000},
               {[] { dropItem("Bomb"); }, {0.95, 0.5}, "B at 9 0 1 0", 31000},
               {[] { dropItem("Bowling Ball"); }, {0.05, 0.5}, "W at 0 0 1 0", 1000},
               {dumpGorgon, {0.15, 0.5}, "G at 1 0 1 0", 61000}};
  for (const auto& [act, draws, state, expiry] : cases) {
    fake::draws = draws;
    act();
    EXPECT_EQ(stateOf(fallingPieces.back()), state);
    EXPECT_EQ(fallingPieces.back().expiry, expiry) << state;
    EXPECT_TRUE(fake::draws.empty()) << state;
  }
  EXPECT_EQ(heard() + std::to_string(fake::seedings), "gorgon010");
  compactFalling();
  EXPECT_EQ(fallingPiecesUpper, 4);  // all alive
}

TEST_F(GenerationTest, BallForAFullColumnTakesItsTopAtOnceAndTellsByFlagOrName) {
  const std::string column = "......1/......2/......3/......4/......1/......2/......3";
  levelOf('W');
  const Action arrivals[] = {[] { spawn(5); },
                             [] {
                               fake::draws = {0.6, 0}, dropItem("Bowling Ball");
                             }};
  for (const Action& arrive : arrivals) {
    lay(column);
    erase(impacts, impactsUpper);
    erase(scorePopups, scorePopupsUpper);
    erase(fallingPieces, fallingPiecesUpper);
    arrive();
    EXPECT_EQ(outcome(), column.substr(8) + "; falls W6; pops 10; impacts 1; hears bowling01");
    EXPECT_EQ((Numbers{impacts[0].x, impacts[0].y}), (Numbers{440, -60}));
    arrive();
    EXPECT_EQ(board(), column.substr(8));
  }
}

}  // namespace glonks
