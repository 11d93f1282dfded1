#include <sstream>

#include "base/randomgenerator.h"
#include "game/loading/levels.h"
#include "tests/engine/enginetest.h"

namespace glonks {

// In the order of a piece file, the first as its field 4, and a letter for each.
constexpr Flag Piece::*flags[] = {&Piece::bombable,  &Piece::spareFlagA, &Piece::slammable,
                                  &Piece::isBauble,  &Piece::isBomb,     &Piece::isCalculator,
                                  &Piece::isDiamond, &Piece::isGorgon,   &Piece::isShifter,
                                  &Piece::isMoney,   &Piece::spareFlagB, &Piece::isBowlingBall,
                                  &Piece::isSlammer, &Piece::isPin};
const std::string letters = "bxsUBCDGHMyWSP";

class DataFilesTest : public EngineTest {
 protected:
  DataFilesTest() {
    loadPieces();
    ownDataFolders();
  }

  static void write(const std::string& path, const std::string& plain) {
    putBytes("\\plain", plain);
    scrambleFile("\\plain", path);
  }
  static void levelFrom(const std::string& plain, Flag isArcade) {
    write("\\levels\\7", plain);
    loadLevel("\\levels\\7", isArcade);
  }

  // Name and variety, the flags that are set, value and timer.
  static std::string described(const Piece& piece) {
    std::ostringstream text;
    text << piece.name << piece.variety << " ";
    for (std::size_t i = 0; i < 14; ++i) text << std::string(piece.*flags[i] == True, letters[i]);
    text << " " << piece.value << " " << piece.timerMin << " " << piece.timerMax;
    return text.str();
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

TEST_F(DataFilesTest, CatalogueHoldsEveryKindOfPiece) {
  Names kinds;
  for (i16 slot = 0; slot <= pieceCatalogUpper; ++slot) {
    const Piece& piece = entryAt(slot);
    kinds.push_back(described(piece));
    EXPECT_EQ(piece.imageIndex, slot);
    const bool pictured = piece.name != "BType" && piece.name != "Pin";
    EXPECT_EQ(piece.surface ? piece.surfaceDesc.width : 0, pictured ? 90 : 0) << piece.name;
  }
  std::sort(kinds.begin(), kinds.end());
  EXPECT_EQ(kinds,
            (Names{"BType0 bs 0 0 0", "Bauble0 U 0 60000 120000", "Bomb0 B 0 25000 35000",
                   "Bowling Ball0 W 0 0 0", "Calculator0 bsC 0 11000 13000", "Diamond0 D 0 0 0",
                   "Glonk1 bs 10 0 0", "Glonk2 bs 10 0 0", "Glonk3 bs 10 0 0", "Glonk4 bs 10 0 0",
                   "Gorgon0 bsG 500 50000 70000", "Money0 bsM 0 0 0", "Music0 bs 0 0 0",
                   "Pin0 P 0 0 0", "Rock1 b 20 0 0", "Rock2 b 20 0 0", "Rock3 b 20 0 0",
                   "Shifter0 bsH 25 7000 9000", "Slammer0 S 0 0 0"}));
  const u32 display = entryAt(negativeCalculatorSlot).surface->pixel(45, 20);
  EXPECT_GT(display >> 16U, display >> 8U & 0xFFU) << "the red one, for negative values";
}

// Numbers and flags are taken from the leading part of their fields.
TEST_F(DataFilesTest, PieceFieldsStandInTheOrderOfTheFile) {
  for (std::size_t set = 0; set < 14; ++set) {
    std::string plain = "Pin\n7\nnone\n";
    for (std::size_t i = 0; i < 13; ++i) plain += i == set ? "0.5\n" : "no\n";
    plain += std::string("70002.5 points\n3.5\n-4\n") + (set == 13 ? "-1\n" : "\n");
    write("\\init\\1281", plain);
    EXPECT_EQ(described(loadPiece("1281")), std::string("Pin7 ") + letters[set] + " 70002 -4 4");
  }
}

TEST_F(DataFilesTest, BadFilesAreNamedWithTheirField) {
  const std::string cases[][3] = {
      {"levels\\7", "", "spawnInterval"},
      {"levels\\7", "0,Glonk,1,0,999", "spawnInterval"},
      {"levels\\7", "700,Glonk,one,0,999", "variety"},
      {"levels\\7", "700,Glonk,1,0,99999", "spawnHigh"},
      {"init\\1281", ",1,rock_01", "name"},
      {"init\\1281", "Rock,1,x,0,0,0,0,0,0,0,0,0,0,0,0,0,9e9", "value"}};
  for (const auto& [path, plain, field] : cases) {
    write("\\" + path, plain);
    const std::string error = path[0] == 'i' ? errorOf([] { loadPiece("1281"); })
                                             : errorOf([] { loadLevel("\\levels\\7", False); });
    EXPECT_TRUE(holds(error, path) && holds(error, " " + field + " ")) << plain << error;
  }
}

TEST_F(DataFilesTest, RandomBytesNeverDoMoreThanRaiseAnError) {
  RandomGenerator bytes;
  for (i32 round = 0; round < 300; ++round) {
    std::string text(static_cast<std::size_t>(bytes.next() * 400), ' ');
    const std::string likely = "0123456789012345678901234567890123456789...........\r\n?";
    for (char& c : text) c = likely[static_cast<std::size_t>(bytes.next() * 54)];
    for (const char* path : {"\\init\\1281", "\\levels\\7"}) putBytes(path, text);
    EXPECT_NE(errorOf([] { loadPiece("1281"); }), "no error") << round;
    EXPECT_NE(errorOf([] { loadLevel("\\levels\\7", True); }), "no error") << round;
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
  EXPECT_EQ(ranges(), "Rock1 400-999 Glonk2 0-399 ");
  const std::pair<std::string, Numbers> cases[] = {
      {"1,1,2,0\n0,x\n0,x\n", {True, True, True, True}},
      {"2,-5,0,1\n-1,x\n5,x\n", {True, True, False, True}},
      {"0,0,0,0\n3,x\n-1,x\n", {False, False, True, False}}};
  for (const auto& [goals, on] : cases) {
    levelFrom("1000\nT\nN\n1\n-1,-1,-1\n" + goals, True);
    EXPECT_EQ((Numbers{limitOn, surviveOn, avoidOn, landOn}), on) << goals;
  }
}

TEST_F(DataFilesTest, UnknownPieceShiftsTheEntriesBehindIt) {
  // The numbers of "Cube" are read as the next entry's name and variety, and so on.
  levelFrom("700,Glonk,1,0,99,Cube,1,Glonk,1,20,30,Glonk,2,40,50\n", False);
  EXPECT_EQ(ranges(), "Glonk1 20-30 Glonk2 40-50 ");  // the later of two entries stands
}

}  // namespace glonks
