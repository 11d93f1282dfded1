#include "rules/removal.h"

#include "rules/items.h"
#include "tests/engine/boardtest.h"

namespace glonks {

class RemovalTest : public BoardTest {
 protected:
  // Lays a board and removes or explodes the piece at (row, column).
  static void act(void (*step)(i16, i16), const std::string& rows, i16 row, i16 column,
                  const std::vector<float>& draws = {}) {
    clearEffects();
    lay(rows);
    fake::draws.assign(draws.begin(), draws.end());
    step(row, column);
    EXPECT_TRUE(fake::draws.empty()) << rows;
  }
};

TEST_F(RemovalTest, EveryKindPaysInItsWay) {
  const std::pair<const char*, const char*> cases[] = {
      {".1", ".1 |  |  | "},         {"3", " |  | 10 | "},      {"c", " |  | 40 | "},
      {"G", " |  | 500 | gorgon02"}, {"H", " |  | 25 | "},      {"U", " |  | 0 | bauble01"},
      {"M", " |  |  | coin01"},      {"N", " |  |  | music01"}, {"T", " |  | 0 | "},
      {"B", " |  | 0 | "},           {"D", " |  | 0 | "},       {"S", " |  | 0 | "}};
  for (const auto& [before, after] : cases) {
    act(removePiece, before, 0, 0);
    EXPECT_EQ(outcome(), after) << before;
  }
  EXPECT_EQ((Numbers{bank, notesCollected, pendingSpawns, bTypeLeft}), (Numbers{1, 1, 3, -1}));
  bank = pendingSpawns = 32767;
  act(removePiece, "M", 0, 0);
  act(removePiece, "U", 0, 0);
  EXPECT_EQ((Numbers{bank, pendingSpawns}), (Numbers{32767, 32767}));
  act(removePiece, "4/...2/...3/...1", 0, 0);
  heard();
  removePiece(1, 3);
  EXPECT_EQ(cellAt(1, 3).name, "");
  EXPECT_EQ(outcome(), "4/...2//...1 |  | 10 | ");  // nothing has settled
  EXPECT_EQ((Numbers{scorePopups[0].x, scorePopups[0].y}), (Numbers{185, 365}));
}

TEST_F(RemovalTest, RemovalsCountForTheGoalsByName) {
  goalPieceName = "Bauble";
  avoidName = "Glonk";
  goalPieceCount = avoidLeft = 5;
  act(removePiece, "2", 0, 0);
  act(removePiece, "U", 0, 0);
  lay("U");
  cellAt(0, 0).expiry = gameTick();  // overdue: it doesn't count
  removePiece(0, 0);
  EXPECT_EQ((Numbers{goalPieceCount, avoidLeft}), (Numbers{4, 4}));
  goalPieceName = "Glonk";
  act(removePiece, "1", 0, 0);
  EXPECT_EQ((Numbers{goalPieceCount, avoidLeft}), (Numbers{3, 3}));
}

TEST_F(RemovalTest, LastBTypePieceIsAVictory) {
  bTypeLeft = 2;
  heard();
  act(removePiece, "T", 0, 0);
  EXPECT_EQ(ticker() + heard(), "");
  act(removePiece, "T", 0, 0, {0.99F});
  EXPECT_EQ(ticker() + heard(), "VICTORY!clapping02 clapping03 clapping01");
  EXPECT_EQ(bTypeLeft, 0);
}

TEST_F(RemovalTest, PinTakesWhatIsBelowAndByChanceBesideUpToColumnSix) {
  constexpr float no = 0.4F, yes = 0.6F;
  const struct {
    const char* before;
    i16 row, column;
    std::vector<float> draws;
    const char* after;
  } cases[] = {
      {"1P2/RDS3", 1, 1, {no, yes}, "1/...3 |  | 0 0 20 0 10 | pop01"},
      {"1P2/RDS3", 1, 1, {yes, no}, "..2/...3 |  | 0 0 20 0 10 | pop01"},
      {"P1/R2", 1, 0, {yes}, " |  | 0 20 10 10 | pop01"},
      {"1P2", 0, 1, {no, no}, "1.2 |  | 0 | pop01"},
      {".....1P2/.....RDSR", 1, 6, {yes}, ".......2/.......SR |  | 0 0 20 10 | pop01"},
      {"........1P/.......112", 1, 9, {no}, "........1/.......1 |  | 0 10 10 | pop01"},
      // The second knocks the first over again, which pays and counts once more.
      {"PP", 0, 0, {yes, yes, no, no}, " |  | 0 0 0 | pop01 pop01 pop01"},
  };
  for (const auto& [before, row, column, draws, after] : cases) {
    act(removePiece, before, row, column, draws);
    EXPECT_EQ(outcome(), after) << before;
  }
}

TEST_F(RemovalTest, BombTakesItsBombableNeighboursAndAllFourGlonksMakeFruit) {
  entryAt(3).value = 7;        // the Bomb, which pays twice
  entryAt(1).bombable = True;  // the Pin, which takes the fourth Glonk from out of reach
  const struct {
    const char* before;
    i16 row, column;
    std::vector<float> draws;
    const char* after;
    bool fruit;
  } cases[] = {
      {"..S4/12R4/3BS4/DB34",
       1,
       1,
       {},
       "...4/...4/...4/DB.4 | S2 S2 | 7 7 10 10 10 10 20 | pop01",
       false},
      {"B1/23", 1, 0, {}, " |  | 7 7 10 10 10 | pop01", false},
      {"........3/........12/.........B", 0, 9, {}, " | 38 | 7 7 10 10 | pop01", false},
      {"R2/3B4.1", 0, 1, {}, "....1 |  | 7 7 10 10 20 10 | pop01", false},
      {"12/3BP4", 0, 1, {0.6F, 0.6F}, " |  | 7 7 10 0 10 10 10 | pop01 pop01", false},
      {"121/3B4", 0, 1, {}, " |  | 7 7 10 10 10 10 10 | pop01", true},
  };
  for (const auto& [before, row, column, draws, after, fruit] : cases) {
    act(explodeBomb, before, row, column, draws);
    EXPECT_EQ(outcome(), after) << before;
    EXPECT_EQ(ticker() + std::to_string(score),
              fruit ? "FRUIT COCKTAIL BONUS!  5000 POINTS5000" : "0");
  }
  EXPECT_EQ((Numbers{impacts[0].x, impacts[0].y, impacts[0].age}), (Numbers{15, 450, 10}));
}

TEST_F(RemovalTest, FruitLooksAndPaysLikeFruitEverywhereUntilTheNextGame) {
  lay("121/3B4.2");
  Cell& other = cellAt(0, 4);
  other.variety = 9;  // no fruit for this one, but the points
  const Surface looks = other.surface;
  drop(7, "Glonk").variety = 2;
  const u32 plain = entryAt(15).surface->pixel(45, 45);
  explodeBomb(0, 1);
  EXPECT_EQ((Numbers{entryAt(15).value, entryAt(18).value, entryAt(12).value}),
            (Numbers{110, 110, 20}));
  SurfaceDesc desc;
  const char* fruit[] = {"apple", "orange", "cherry", "grapes"};
  for (i16 i = 0; i < 4; ++i) {
    const Surface file =
        dd->CreateSurfaceFromFile(std::string("\\images\\") + fruit[i] + ".bmp", desc);
    for (i32 at = 20; at < 70; ++at) {
      EXPECT_EQ(entryAt(15 + i).surface->pixel(at, 40), file->pixel(at, 40));
    }
  }
  EXPECT_TRUE(other.value == 110 && other.surface == looks);
  EXPECT_TRUE(fallingPieces[0].value == 100 && fallingPieces[0].surface);
  lay("121/3B4/....4");
  explodeBomb(1, 1);
  EXPECT_EQ((Numbers{entryAt(16).value, cellAt(0, 4).value}), (Numbers{210, 210}));
  fake::draws = {0};
  initVariables();
  loadPieces();
  EXPECT_EQ(entryAt(15).value, 10);
  EXPECT_EQ(entryAt(15).surface->pixel(45, 45), plain);
}

TEST_F(RemovalTest, ItemsDropIntoAColumnDrawnWithTheirTimersArmed) {
  const std::pair<const char*, char> items[] = {{"Slammer", 'S'}, {"Bomb", 'B'}};
  for (const auto& [name, letter] : items) {
    clearEffects();
    fake::draws = {0.75F, 0.5F};
    dropItem(name);
    EXPECT_EQ(falling(), std::string(1, letter) + "7");
    EXPECT_EQ(fallingPieces[0].expiry, gameTick() + (letter == 'B' ? 30000 : 0));
  }
  EXPECT_EQ(fake::seedings, 0);
}

TEST_F(RemovalTest, BowlingBallDigsFromTheTopDownAndOpensAFullColumn) {
  lay("..1/.3G/.3M/.3U");
  fake::draws = {0.25F, 0};
  dropItem("Bowling Ball");
  Names digs;
  while (fallingPiecesUpper >= 0) {
    movePieces();
    if (!fake::sounds.empty()) digs.push_back(heard());
    compactFalling();
  }
  EXPECT_EQ(digs,
            (Names{"bowling01", "bowling01 gorgon02", "bowling01 coin01", "bowling01 bauble01"}));
  EXPECT_EQ(board() + popups(), ".3/.3/.310 500 0");
  EXPECT_EQ((Numbers{impactsUpper, impacts[0].y, impacts[3].y}), (Numbers{3, 195, 450}));

  lay("2/2/2/2/2/2/2");
  fake::draws = {0, 0};
  dropItem("Bowling Ball");
  EXPECT_EQ(board(), "2/2/2/2/2/2");
}

}  // namespace glonks
