#include <map>
#include <set>
#include <sstream>

#include "game/levels.h"
#include "game/randomgenerator.h"
#include "tests/engine/enginetest.h"

namespace glonks {

// In the order of a piece file, the first as its field 4.
constexpr std::pair<const char*, Flag Piece::*> flags[] = {
    {" bombable", &Piece::bombable},   {" spareA", &Piece::spareFlagA},
    {" slammable", &Piece::slammable}, {" bauble", &Piece::isBauble},
    {" bomb", &Piece::isBomb},         {" calculator", &Piece::isCalculator},
    {" diamond", &Piece::isDiamond},   {" gorgon", &Piece::isGorgon},
    {" shifter", &Piece::isShifter},   {" money", &Piece::isMoney},
    {" spareB", &Piece::spareFlagB},   {" ball", &Piece::isBowlingBall},
    {" slammer", &Piece::isSlammer},   {" pin", &Piece::isPin}};

class DataFilesTest : public EngineTest {
 protected:
  DataFilesTest() {
    loadRealPieces();
    ownDataFolders();
  }

  static void write(const std::string& path, const std::string& plain) {
    putBytes("\\plain", plain);
    scrambleFile("\\plain", path);
  }
  static Piece pieceFrom(const std::string& plain) {
    write("\\init\\1281", plain);
    return loadPiece("1281");
  }
  static void levelFrom(const std::string& plain, Flag isArcade) {
    write("\\levels\\7", plain);
    loadLevel("\\levels\\7", isArcade);
  }

  // Name, the flags that are set, value and timer.
  static std::string described(const Piece& piece) {
    std::ostringstream text;
    text << piece.name;
    for (const auto& [name, flag] : flags) text << (piece.*flag == True ? name : "");
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
  ASSERT_EQ(pieceCatalogUpper, 18);
  std::map<std::string, std::set<i16>> kinds;  // varieties of what is alike otherwise
  for (i16 slot = 0; slot <= pieceCatalogUpper; ++slot) {
    const Piece& piece = entryAt(slot);
    EXPECT_TRUE(kinds[described(piece)].insert(piece.variety).second) << piece.name;
    EXPECT_EQ(piece.imageIndex, slot);
    const bool pictured = piece.name != "BType" && piece.name != "Pin";
    EXPECT_EQ(piece.surface ? piece.surfaceDesc.width : 0, pictured ? 90 : 0) << piece.name;
  }
  EXPECT_EQ(kinds, (std::map<std::string, std::set<i16>>{
                       {"Glonk bombable slammable 10 0 0", {1, 2, 3, 4}},
                       {"Rock bombable 20 0 0", {1, 2, 3}},
                       {"Slammer slammer 0 0 0", {0}},
                       {"Bomb bomb 0 25000 35000", {0}},
                       {"Bauble bauble 0 60000 120000", {0}},
                       {"Diamond diamond 0 0 0", {0}},
                       {"Calculator bombable slammable calculator 0 11000 13000", {0}},
                       {"Gorgon bombable slammable gorgon 500 50000 70000", {0}},
                       {"Shifter bombable slammable shifter 25 7000 9000", {0}},
                       {"Bowling Ball ball 0 0 0", {0}},
                       {"Money bombable slammable money 0 0 0", {0}},
                       {"BType bombable slammable 0 0 0", {0}},
                       {"Music bombable slammable 0 0 0", {0}},
                       {"Pin pin 0 0 0", {0}}}));
  EXPECT_EQ(entryAt(negativeCalculatorSlot).surfaceDesc.width, 90);
}

TEST_F(DataFilesTest, PieceFieldsStandInTheOrderOfTheFile) {
  for (std::size_t set = 0; set < std::size(flags); ++set) {
    std::string plain = "Pin\n7\nnone\n";
    for (std::size_t i = 0; i < 13; ++i) plain += i == set ? "1\n" : "0\n";
    const Piece piece = pieceFrom(plain + "5\n6\n4\n" + (set == 13 ? "1\n" : "0\n"));
    EXPECT_EQ(described(piece), std::string("Pin") + flags[set].first + " 5 4 6");
    EXPECT_EQ(piece.variety, 7);
  }
}

TEST_F(DataFilesTest, PieceNumbersAndFlagsAreTakenFromTheirLeadingPart) {
  const std::string cases[][3] = {{"1", "2.5", "Pin bombable 2"},
                                  {"-1", "3.5", "Pin bombable 4"},
                                  {"0.5", "70000 points", "Pin bombable 70000"},
                                  {"yes", "", "Pin 0"}};
  for (const auto& [flag, value, expected] : cases) {
    const std::string plain = "Pin,3,x," + flag + ",0,0,0,0,0,0,0,0,0,0,0,0," + value + ",9,8,0";
    EXPECT_EQ(described(pieceFrom(plain)), expected + " 8 9");
  }
}

TEST_F(DataFilesTest, BadFilesAreNamedWithTheirField) {
  const std::string cases[][3] = {
      {"levels\\7", "", "spawnInterval"},
      {"levels\\7", "soon,Glonk,1,0,999", "spawnInterval"},
      {"levels\\7", "0,Glonk,1,0,999", "spawnInterval"},
      {"levels\\7", "700,Glonk,one,0,999", "variety"},
      {"levels\\7", "700,Glonk,1,0", "spawnHigh"},
      {"levels\\7", "700,Glonk,1,0,99999", "spawnHigh"},
      {"init\\1281", ",1,rock_01", "name"},
      {"init\\1281", "Rock,99999,rock_01", "variety"},
      {"init\\1281", "Rock,1,rock_01,0,0,0", "isBauble"},
      {"init\\1281", "Rock,1,x,0,0,0,0,0,0,0,0,0,0,0,0,0,9e9", "value"}};
  for (const auto& [path, plain, field] : cases) {
    write("\\" + path, plain);
    const std::string error = path[0] == 'i' ? errorOf([] { loadPiece("1281"); })
                                             : errorOf([] { loadLevel("\\levels\\7", False); });
    EXPECT_TRUE(holds(error, path) && holds(error, " " + field + " ")) << plain << error;
    EXPECT_FALSE(exists("\\temp"));
  }
}

TEST_F(DataFilesTest, RandomBytesNeverDoMoreThanRaiseAnError) {
  RandomGenerator bytes;
  for (i32 round = 0; round < 300; ++round) {
    std::string text(static_cast<std::size_t>(bytes.next() * 400), ' ');
    // Half of the files look much like scrambled ones.
    const std::string likely = "0123456789..\r\n";
    for (char& c : text) c = static_cast<char>(bytes.next() * 256);
    for (char& c : text) c = round % 2 == 0 ? c : likely[static_cast<unsigned char>(c) % 14U];
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
}

TEST_F(DataFilesTest, GoalsAreSwitchedOnByWhatTheFileSays) {
  const std::pair<std::string, Numbers> cases[] = {
      {"1,0,1,0\n-1,x\n-1,x\n", {False, False, False, False}},
      {"1,1,2,0\n0,x\n0,x\n", {True, True, True, True}},
      {"2,-5,0,1\n-1,x\n5,x\n", {True, True, False, True}},
      {"0,0,0,0\n3,x\n-1,x\n", {False, False, True, False}}};
  for (const auto& [goals, on] : cases) {
    levelFrom("1000\nT\nN\n1\n-1,-1,-1\n" + goals, True);
    EXPECT_EQ((Numbers{limitOn, surviveOn, avoidOn, landOn}), on) << goals;
  }
}

TEST_F(DataFilesTest, FreestyleReadsIntervalAndRangesAlone) {
  goalScore = 77;
  levelFrom("700,Glonk,1,0,99,Rock,2,100,999,Glonk,1,5,6\n", False);
  EXPECT_EQ(goalScore, 77);
  EXPECT_EQ(ranges(), "Rock2 100-999 Glonk1 5-6 ");  // the later of two entries stands
  // "Cube" isn't known: its numbers are read as the next entry's name and variety, and so on.
  levelFrom("700,Cube,1,Glonk,1,20,30,Glonk,2,40,50\n", False);
  EXPECT_EQ(ranges(), "Rock2 100-999 Glonk1 20-30 Glonk2 40-50 ");
}

}  // namespace glonks
