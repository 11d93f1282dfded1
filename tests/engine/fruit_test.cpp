#include "rules/fruit.h"

#include "rules/removal.h"
#include "storage/files/log.h"
#include "tests/engine/enginetest.h"

namespace glonks {

class FruitTest : public EngineTest {};

TEST_F(FruitTest, FruitLooksAndPaysLikeFruitEverywhereUntilTheNextGame) {
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
TEST_F(FruitTest, FruitThatFailsEndsTheGame) {
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
