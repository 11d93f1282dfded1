#include "rules/removal.h"

#include "rules/fruit.h"
#include "storage/files/log.h"
#include "tests/engine/enginetest.h"

namespace glonks {

class RemovalTest : public EngineTest {
 protected:
  static void act(void (*step)(i16, i16), const std::string& rows, i16 row, i16 column,
                  const Draws& draws = {}) {
    lay(rows);
    fake::draws = draws;
    step(row, column);
    EXPECT_TRUE(fake::draws.empty()) << rows;
  }
};

TEST_F(RemovalTest, EveryKindPaysInItsWay) {
  const std::pair<const char*, const char*> cases[] = {{".1", ".1"},
                                                       {"3", "; pops 10"},
                                                       {"R", "; pops 20"},
                                                       {"c", "; pops 40"},
                                                       {"G", "; pops 500; hears gorgon02"},
                                                       {"H", "; pops 25"},
                                                       {"U", "; pops 0; hears bauble01; queued 3"},
                                                       {"M", "; hears coin01; bank 1"},
                                                       {"N", "; hears music01; notes 1"},
                                                       {"T", "; pops 0; btypes -1"},
                                                       {"B", "; pops 0"},
                                                       {"D", "; pops 0"},
                                                       {"4/2", "4/; pops 10"}};  // nothing settles
  for (const auto& [before, after] : cases) {
    renew();
    act(removePiece, before, 0, 0);
    EXPECT_EQ(outcome(), after) << before;
  }
  EXPECT_EQ((Numbers{scorePopups[0].x, scorePopups[0].y}), (Numbers{-70, 450}));
  EXPECT_EQ(cellAt(0, 0).name, "");
  bank = pendingSpawns = 32767;
  act(removePiece, "M", 0, 0);
  act(removePiece, "U", 0, 0);
  EXPECT_EQ((Numbers{bank, pendingSpawns}), (Numbers{32767, 32767}));
}

TEST_F(RemovalTest, RemovalsCountForTheGoalsByName) {
  const struct {
    char letter;
    i32 expiry;
    const char* goalName;
    const char* avoid;
    Numbers counts;
  } cases[] = {{'2', 0, "Glonk", "Glonk", {4, 4}},
               {'2', 0, "Bauble", "Glonk", {5, 4}},
               {'2', 0, "Glonk", "Rock", {4, 5}},
               {'U', 1001, "Bauble", "", {4, 5}},
               {'U', 1000, "Bauble", "Bauble", {5, 4}}};  // overdue: counts to avoid alone
  for (const auto& [letter, expiry, goalName, avoid, counts] : cases) {
    renew();
    goalPieceName = goalName;
    avoidName = avoid;
    goalPieceCount = avoidLeft = 5;
    lay(std::string(1, letter));
    cellAt(0, 0).expiry = expiry;
    removePiece(0, 0);
    EXPECT_EQ((Numbers{goalPieceCount, avoidLeft}), counts) << letter << goalName << expiry;
  }
}

TEST_F(RemovalTest, LastBTypePieceIsAVictory) {
  bTypeLeft = 2;
  act(removePiece, "T", 0, 0);
  EXPECT_EQ(outcome(), "; pops 0; btypes 1");
  act(removePiece, "T", 0, 0, {0.99});
  EXPECT_EQ(outcome(), "; pops 0 0; hears clapping02 clapping03 clapping01; says VICTORY!");
}

TEST_F(RemovalTest, PinTakesWhatIsBelowAndByChanceBesideUpToColumnSix) {
  constexpr double no = 0.4, yes = 0.6;
  const struct {
    const char* before;
    i16 row, column;
    Draws draws;
    const char* after;
    i32 pins;
  } cases[] = {
      {"1P2/RDS3", 1, 1, {no, yes}, "1/...3; pops 0 0 20 0 10", 1},
      {"1P2/RDS3", 1, 1, {yes, no}, "..2/...3; pops 0 0 20 0 10", 1},
      {"P1/R2", 1, 0, {yes}, "; pops 0 20 10 10", 1},
      {"1P2", 0, 1, {no, no}, "1.2; pops 0", 1},
      {".....1P2/.....RDSR", 1, 6, {yes}, ".......2/.......SR; pops 0 0 20 10", 1},
      {".....P1/.....112", 1, 5, {no, no}, "......1/.......2; pops 0 10 10", 1},
      {"........1P/.......112", 1, 9, {no}, "........1/.......1; pops 0 10 10", 1},
      // The second knocks the first over again, which pays and counts once more.
      {"PP", 0, 0, {yes, yes, no, no}, "; pops 0 0 0", 3},
  };
  for (const auto& [before, row, column, draws, after, pins] : cases) {
    renew();
    act(removePiece, before, row, column, draws);
    const std::string count = pins == 1 ? "" : "*" + std::to_string(pins);
    EXPECT_EQ(outcome(), after + ("; impacts " + std::to_string(pins)) + "; hears pop01" + count)
        << before;
  }
}

TEST_F(RemovalTest, BombTakesItsBombableNeighboursAndAllFourGlonksMakeFruit) {
  const struct {
    const char* before;
    i16 row, column;
    const char* after;
    const char* more;
  } cases[] = {
      {"..S4/12R4/3BS4/DB34", 1, 1, "...4/...4/...4/D..4; falls S2 S2; pops 7 7 7 10 10 10 10 20",
       ""},
      {"B1/23", 1, 0, "; pops 7 7 10 10 10", ""},
      {"........3/........12/.........B", 0, 9, "; falls 38; pops 7 7 10 10", ""},
      {"R2/3B4.1", 0, 1, "....1; pops 7 7 10 10 20 10", ""},
      {"1M3/2BU/N.S", 1, 1, "..S; pops 7 7 10 0 10 10", "; bank 1; notes 1; queued 3"},
      // A Pin takes the fourth from out of reach.
      {"12/3BP4", 0, 1, "; pops 7 7 10 0 10 10 10", ""},
      {"121/3B4", 0, 1, "; pops 7 7 10 10 10 10 10",
       "; says FRUIT COCKTAIL BONUS!  5000 POINTS; score 5000"},
  };
  for (const auto& [before, row, column, after, more] : cases) {
    renew();
    entryOf('B').value = 7;  // which it pays twice
    entryOf('P').bombable = True;
    const bool pin = holds(before, "P");
    act(explodeBomb, before, row, column, pin ? Draws{0.6, 0.6} : Draws{});
    EXPECT_EQ((Numbers{impacts[0].x, impacts[0].y, impacts[0].age}),
              (Numbers{85 * column - 70, 450 - 85 * row, 10}));
    heard();
    EXPECT_EQ(outcome(), after + std::string("; impacts ") + (pin ? "2" : "1") + more) << before;
  }
}

TEST_F(RemovalTest, FruitLooksAndPaysLikeFruitEverywhereUntilTheNextGame) {
  lay("12R4.2");
  Cell& other = cellAt(0, 5);
  other.variety = 9;  // no fruit for this one, but the points
  drop('2', 7);
  fruitize();
  const std::string fruit[] = {"apple", "orange", "cherry", "grapes"};
  for (char letter = '1'; letter <= '4'; ++letter) {
    EXPECT_EQ(fake::nameOf(entryOf(letter).surface), fruit[letter - '1']);
    EXPECT_EQ(entryOf(letter).value, 110);
  }
  EXPECT_EQ((Numbers{cellAt(0, 0).value, cellAt(0, 2).value, other.value, fallingPieces[0].value}),
            (Numbers{110, 20, 110, 110}));
  EXPECT_EQ((Names{fake::nameOf(cellAt(0, 0).surface), fake::nameOf(fallingPieces[0].surface),
                   fake::nameOf(other.surface)}),
            (Names{"apple", "orange", "glonk_02"}));
  drawn();
  backBuffer->Blt({}, entryOf('1').surface, {}, bltKeyed);
  EXPECT_EQ(drawn(), Names{"apple whole"});
  fruitize();
  EXPECT_EQ((Numbers{entryOf('4').value, cellAt(0, 0).value}), (Numbers{210, 210}));
  loadPieces();
  EXPECT_EQ(fake::nameOf(entryOf('1').surface) + std::to_string(entryOf('1').value), "glonk_0110");
}

// Whatever stops it: what came before stays, and the game ends with two lines in the log.
TEST_F(RemovalTest, FruitThatFailsEndsTheGame) {
  const std::pair<Action, std::string> failures[] = {
      {[] { throw RuntimeError(ErrorNumber::fileNotFound, "no cherry"); }, "53, no cherry"},
      {[] { throw std::length_error("no room"); }, "5, no room"}};
  for (const auto& [fail, reason] : failures) {
    renew();
    logEnabled = True;
    openLog();
    fake::onPicture = [&](const std::string& name) {
      if (name == "cherry") fail();
    };
    lay("121/3B4");
    explodeBomb(0, 1);
    EXPECT_EQ(entryOf('1').value + entryOf('3').value, 120);
    EXPECT_EQ((Numbers{gameOver, score, fake::windowOpen, dd == nullptr}),
              (Numbers{True, 5000, false, true}));
    EXPECT_EQ(logged(), (Names{"error occured in fruitize function.", reason,
                               "destroy - shutting down directx   "}));
    fruitize();  // of a second Bomb in this frame
    EXPECT_EQ(logged().size(), 3U);
    closeLog();
  }
}

}  // namespace glonks
