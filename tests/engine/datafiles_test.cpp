#include <sstream>

#include "game/loading/levels.h"
#include "tests/engine/enginetest.h"

namespace glonks {

class DataFilesTest : public EngineTest {
 protected:
  DataFilesTest() { ownFolderOfLinks("levels"); }

  static void levelFrom(const std::string& plain, Flag isArcade) {
    putScrambled("\\levels\\7", plain);
    loadLevel("\\levels\\7", isArcade);
  }

  // The draws of the kinds that have any: "Rock1 400-999 ...".
  static std::string ranges() {
    std::ostringstream text;
    for (const Piece& piece : pieceCatalog) {
      if (piece.spawnHigh == 0) continue;
      text << piece.name << piece.variety << " " << piece.spawnLow << "-" << piece.spawnHigh << " ";
    }
    return text.str();
  }
};

TEST_F(DataFilesTest, BadFilesAreNamedWithTheirField) {
  const std::string cases[][3] = {
      {"levels\\7", "", "spawnInterval"},
      {"levels\\7", "0,Glonk,1,0,999", "spawnInterval"},
      {"levels\\7", "3600001,Glonk,1,0,999", "spawnInterval"},
      {"levels\\7", "700,Glonk,one,0,999", "variety"},
      {"levels\\7", "700,Glonk,1,0,99999", "spawnHigh"},
      {"init\\1281", ",1,rock_01", "name"},
      {"init\\1281", "Rock,1,x,0,0,0,0,0,0,0,0,0,0,0,0,0,9e9", "value"}};
  for (const auto& [path, plain, field] : cases) {
    putScrambled("\\" + path, plain);
    const std::string error = path[0] == 'i' ? errorOf([] { loadPiece("1281"); })
                                             : errorOf([] { loadLevel("\\levels\\7", False); });
    EXPECT_TRUE(holds(error, path) && holds(error, " " + field + " ")) << plain << error;
    EXPECT_FALSE(exists("\\temp"));
  }
}

TEST_F(DataFilesTest, ArcadeLevelFillsEveryField) {
  levelWon = levelOver = True;
  levelFrom(
      "1500.9\nTitle, with a comma\nNext, \"level\"\n 42 \n12,Glonk,5000,3,30\n2,1.5,4,\"Gorgon\"\n"
      "6,Bauble\nGlonk,2,0,399\nRock,1,400,999\n",
      True);
  EXPECT_EQ((Names{levelTitle, rewardLevelName, goalPieceName, avoidName, landName}),
            (Names{"Title, with a comma", "Next, \"level\"", "Glonk", "Gorgon", "Bauble"}));
  EXPECT_EQ((Numbers{spawnInterval, rewardLevelFile, goalPieceCount, goalScore, limitMinutes,
                     limitSeconds, surviveMinutes, surviveSeconds, avoidLeft, landLeft}),
            (Numbers{1500, 42, 12, 5000, 2, 30, 1, 2, 4, 6}));
  EXPECT_EQ(levelWon + levelOver, 0);
  EXPECT_EQ(ticker(), "TITLE? WITH A COMMA");
  EXPECT_EQ(ranges(), "Rock1 400-999 Glonk2 0-399 ");
  const std::pair<std::string, Numbers> cases[] = {
      {"1,1,2,0\n0,x\n0,x\n", {True, True, True, True}},
      {"2,-5,0,1\n-1,x\n5,x\n", {True, True, False, True}},
      {"1,0,1,0\n3,x\n-1,x\n", {False, False, True, False}}};
  for (const auto& [goals, on] : cases) {
    levelFrom("1000\nT\nN\n1\n-1,-1,-1\n" + goals, True);
    EXPECT_EQ((Numbers{limitOn, surviveOn, avoidOn, landOn}), on) << goals;
  }
  // One that ends too early, in its goals or in its pieces, changes nothing.
  const auto before = gameState();
  for (const std::string rest : {"5,Rock,70,3,30\n",
                                 "5,Rock,70,3,30,3,30,2,Rock,2,Rock\nRock,1,2,3,"
                                 "Rock,1,4"}) {
    EXPECT_PRED2(holds, errorOf([&] { levelFrom("900\nOther\nO\n2\n" + rest, True); }), "short");
    EXPECT_EQ(gameState(), before) << rest;
  }
}

TEST_F(DataFilesTest, FreestyleLevelTouchesNoGoalAndAnUnknownPieceShiftsTheEntriesAfterIt) {
  const auto before = gameState();
  // The numbers of "Cube" are read as the next entry's name and variety, and so on.
  levelFrom("700,Glonk,1,0,99,Cube,1,Glonk,1,20,30,Glonk,2,40,50\n", False);
  EXPECT_EQ(ranges(), "Glonk1 20-30 Glonk2 40-50 ");  // the later of two entries stands
  spawnInterval = 0;
  EXPECT_EQ(gameState(), before);
}

}  // namespace glonks
