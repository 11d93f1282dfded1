#include <algorithm>
#include <fstream>
#include <set>

#include "game/levels.h"
#include "game/pieces.h"
#include "game/randomgenerator.h"
#include "storage/textchannels.h"
#include "tests/engine/enginetest.h"
#include "tests/tempfolder.h"

namespace glonks {
namespace {

// The game's own data: what the piece files and the Freestyle level have to hold.
class GameDataTest : public EngineTest {
 protected:
  GameDataTest() {
    makeRealKeys();
    loadPieces();
  }
};

std::string flagsOf(const Piece& piece) {
  const std::pair<const char*, Flag> flags[] = {
      {"bomb", piece.isBomb},       {"slammer", piece.isSlammer},
      {"shifter", piece.isShifter}, {"ball", piece.isBowlingBall},
      {"bauble", piece.isBauble},   {"gorgon", piece.isGorgon},
      {"diamond", piece.isDiamond}, {"pin", piece.isPin},
      {"money", piece.isMoney},     {"calculator", piece.isCalculator},
      {"bombable", piece.bombable}, {"slammable", piece.slammable},
      {"spare", piece.spareFlagA},  {"spare", piece.spareFlagB}};
  std::string text;
  for (const auto& [name, flag] : flags) {
    EXPECT_TRUE(flag == True || flag == False);
    if (flag == True) text += std::string(text.empty() ? "" : " ") + name;
  }
  return text;
}

TEST_F(GameDataTest, CatalogueHoldsEveryKindOfPiece) {
  struct Kind {
    const char* name;
    std::vector<i16> varieties;
    const char* flags;
    i32 value, timerMin, timerMax;
  };
  const Kind kinds[] = {{"Glonk", {1, 2, 3, 4}, "bombable slammable", 10, 0, 0},
                        {"Rock", {1, 2, 3}, "bombable", 20, 0, 0},
                        {"Slammer", {0}, "slammer", 0, 0, 0},
                        {"Bomb", {0}, "bomb", 0, 25000, 35000},
                        {"Bauble", {0}, "bauble", 0, 60000, 120000},
                        {"Diamond", {0}, "diamond", 0, 0, 0},
                        {"Calculator", {0}, "calculator bombable slammable", 0, 11000, 13000},
                        {"Gorgon", {0}, "gorgon bombable slammable", 500, 50000, 70000},
                        {"Shifter", {0}, "shifter bombable slammable", 25, 7000, 9000},
                        {"Bowling Ball", {0}, "ball", 0, 0, 0},
                        {"Money", {0}, "money bombable slammable", 0, 0, 0},
                        {"BType", {0}, "bombable slammable", 0, 0, 0},
                        {"Music", {0}, "bombable slammable", 0, 0, 0},
                        {"Pin", {0}, "pin", 0, 0, 0}};
  ASSERT_EQ(pieceCatalogUpper, 18);
  std::size_t found = 0;
  for (const Kind& kind : kinds) {
    std::vector<i16> varieties;
    for (i16 slot = 0; slot <= pieceCatalogUpper; ++slot) {
      const Piece& piece = pieceCatalog[static_cast<std::size_t>(slot)];
      if (piece.name != kind.name) continue;
      varieties.push_back(piece.variety);
      EXPECT_EQ(flagsOf(piece), kind.flags) << kind.name;
      EXPECT_EQ(piece.value, kind.value) << kind.name;
      EXPECT_EQ(piece.timerMin, kind.timerMin) << kind.name;
      EXPECT_EQ(piece.timerMax, kind.timerMax) << kind.name;
      EXPECT_EQ(piece.imageIndex, slot) << kind.name;
      const bool pictured = piece.name != "BType" && piece.name != "Pin";
      EXPECT_EQ(piece.surface != nullptr, pictured) << kind.name;
      if (pictured) {
        EXPECT_EQ(piece.surfaceDesc.width, 90);
        EXPECT_EQ(piece.surfaceDesc.height, 90);
      }
    }
    std::sort(varieties.begin(), varieties.end());
    EXPECT_EQ(varieties, kind.varieties) << kind.name;
    found += varieties.size();
  }
  EXPECT_EQ(found, 19U);
  const Piece& negative = pieceCatalog[negativeCalculatorSlot];
  EXPECT_NE(negative.surface, nullptr);
  EXPECT_EQ(negative.name, "");
  EXPECT_FALSE(exists("\\temp"));
}

TEST_F(GameDataTest, FreestyleLevelCoversEachDrawOnceWithEveryKindThatMayDrop) {
  loadLevel("\\levels\\2193", False);
  EXPECT_GT(spawnInterval, 0);
  std::set<std::string> kinds;
  for (i32 draw = 0; draw < 1000; ++draw) {
    std::vector<const Piece*> named;
    const Piece* winner = nullptr;
    for (i16 slot = 0; slot <= pieceCatalogUpper; ++slot) {
      const Piece& piece = pieceCatalog[static_cast<std::size_t>(slot)];
      if (piece.spawnLow > draw || piece.spawnHigh < draw) continue;
      if (piece.spawnHigh > 0) named.push_back(&piece);
      winner = &piece;
    }
    ASSERT_EQ(named.size(), 1U) << draw;
    ASSERT_EQ(winner, named.front()) << draw;  // slots that no level names never win draw 0
    kinds.insert(winner->name + std::to_string(winner->variety));
  }
  EXPECT_EQ(kinds.size(), 17U);
  EXPECT_EQ(kinds.count("BType0") + kinds.count("Pin0"), 0U);
}

// Piece and level files made for the test, in a folder of its own.
class DataFileTest : public GameDataTest {
 protected:
  DataFileTest() { ownDataFolders(); }

  static void write(const std::string& path, const std::string& plain) {
    putBytes("\\plain", plain);
    scrambleFile("\\plain", path);
  }
  static std::string pieceWith(const std::string& bombable, const std::string& value) {
    return "Rock,3,\"rock_01\"," + bombable + ",0,1,0,0,0,0,0,0,0,0,0,0," + value + ",900,800,0\n";
  }
};

TEST_F(DataFileTest, PieceFieldsStandInTheOrderOfTheFile) {
  // Each flag alone in its place, the first at field 4.
  const std::pair<const char*, Flag Piece::*> flags[] = {
      {"bombable", &Piece::bombable},     {"spareFlagA", &Piece::spareFlagA},
      {"slammable", &Piece::slammable},   {"isBauble", &Piece::isBauble},
      {"isBomb", &Piece::isBomb},         {"isCalculator", &Piece::isCalculator},
      {"isDiamond", &Piece::isDiamond},   {"isGorgon", &Piece::isGorgon},
      {"isShifter", &Piece::isShifter},   {"isMoney", &Piece::isMoney},
      {"spareFlagB", &Piece::spareFlagB}, {"isBowlingBall", &Piece::isBowlingBall},
      {"isSlammer", &Piece::isSlammer}};
  for (std::size_t set = 0; set < std::size(flags); ++set) {
    std::string plain = "Pin\n7\nnone\n";
    for (std::size_t i = 0; i < std::size(flags); ++i) plain += i == set ? "1\n" : "0\n";
    write("\\init\\0018", plain + "5\n6\n4\n0\n");
    const Piece piece = loadPiece("0018");
    for (std::size_t i = 0; i < std::size(flags); ++i) {
      EXPECT_EQ(piece.*flags[i].second, i == set ? True : False) << flags[set].first << i;
    }
    EXPECT_EQ(piece.isPin, False);
    EXPECT_EQ(piece.value, 5);
    EXPECT_EQ(piece.timerMax, 6);
    EXPECT_EQ(piece.timerMin, 4);
    EXPECT_EQ(piece.surface, nullptr);
  }
}

TEST_F(DataFileTest, PieceNumbersAndFlagsAreTakenFromTheirLeadingPart) {
  struct Case {
    const char *bombable, *value;
    Flag flag;
    i32 number;
  };
  for (const auto& [bombable, value, flag, number] : {Case{"1", "2.5", True, 2},
                                                      {"-1", "3.5", True, 4},
                                                      {"0.5", "70000 points", True, 70000},
                                                      {"yes", "-12", False, -12},
                                                      {"0", "", False, 0}}) {
    write("\\init\\1281", pieceWith(bombable, value));
    const Piece piece = loadPiece("1281");
    EXPECT_EQ(piece.bombable, flag) << bombable;
    EXPECT_EQ(piece.value, number) << value;
    EXPECT_NE(piece.surface, nullptr);
    EXPECT_EQ(piece.alive, False);
  }
}

TEST_F(DataFileTest, BadPieceFilesAreNamedWithTheirField) {
  struct Case {
    const char *what, *plain, *named;
  };
  const std::string cases[][2] = {
      {"", "name"},
      {",1,rock_01", "name"},
      {"Rock\n", "variety"},
      {"Rock,99999,rock_01\n", "variety"},
      {"Rock,1,rock_01,0,0,0\n", "isBauble"},
      {pieceWith("0", "9e9"), "value"},
      {"Rock,1,nothing,0,0,0,0,0,0,0,0,0,0,0,0,0,1,1,1,0\n", "\\images\\nothing.bmp"}};
  for (const auto& [plain, named] : cases) {
    write("\\init\\1281", plain);
    const std::string error = errorOf([] { loadPiece("1281"); });
    EXPECT_PRED2(holds, error, named) << plain;
    EXPECT_TRUE(holds(error, "\\init\\1281") || holds(error, "\\images\\")) << error;
    EXPECT_FALSE(exists("\\temp"));
    EXPECT_FALSE(isChannelOpen(3));
  }
  EXPECT_PRED2(holds, errorOf([] { loadPiece("4742"); }), "\\init\\4742");
}

TEST_F(DataFileTest, RandomBytesNeverDoMoreThanRaiseAnError) {
  fake::useGenerator();
  for (i32 seed = 0; seed < 300; ++seed) {
    RandomGenerator bytes;
    bytes.randomize(seed);
    std::string text;
    const auto length = static_cast<i32>(bytes.next() * 400);
    for (i32 i = 0; i < length; ++i) {
      // Half of the files look much like scrambled ones.
      const char* likely = "0123456789..\r\n";
      text += seed % 2 == 0 ? static_cast<char>(bytes.next() * 256)
                            : likely[static_cast<std::size_t>(bytes.next() * 14)];
    }
    for (const char* path : {"\\init\\1281", "\\levels\\7"}) {
      putBytes(path, text);
    }
    EXPECT_NE(errorOf([] { loadPiece("1281"); }), "no error") << seed;
    EXPECT_NE(errorOf([] { loadLevel("\\levels\\7", True); }), "no error") << seed;
  }
}

constexpr const char* arcadeLevel =
    "1500.9\n"
    "Title, with a comma\n"
    "Next, \"level\"\n"
    " 42 \n"
    "12,Glonk,5000,3,30\n"
    "2,1.5,4,\"Gorgon\"\n"
    "6,Bauble\n"
    "Glonk,2,0,399\n"
    "Rock,1,400,999\n";

TEST_F(DataFileTest, ArcadeLevelFillsEveryField) {
  levelWon = levelOver = True;
  write("\\levels\\7", arcadeLevel);
  loadLevel("\\levels\\7", True);
  EXPECT_EQ(spawnInterval, 1500);
  EXPECT_EQ(levelTitle, "Title, with a comma");
  EXPECT_EQ(rewardLevelName, "Next, \"level\"");
  EXPECT_EQ(rewardLevelFile, 42);
  EXPECT_EQ(goalPieceCount, 12);
  EXPECT_EQ(goalPieceName, "Glonk");
  EXPECT_EQ(goalScore, 5000);
  EXPECT_EQ(limitMinutes, 2);
  EXPECT_EQ(limitSeconds, 30);
  EXPECT_EQ(surviveMinutes, 1);
  EXPECT_EQ(surviveSeconds, 2);
  EXPECT_EQ(avoidLeft, 4);
  EXPECT_EQ(avoidName, "Gorgon");
  EXPECT_EQ(landLeft, 6);
  EXPECT_EQ(landName, "Bauble");
  for (const Flag flag : {limitOn, surviveOn, avoidOn, landOn}) EXPECT_EQ(flag, True);
  EXPECT_EQ(levelWon, False);
  EXPECT_EQ(levelOver, False);
  for (const Piece& piece : pieceCatalog) {
    const bool glonk = piece.name == "Glonk" && piece.variety == 2;
    const bool rock = piece.name == "Rock" && piece.variety == 1;
    EXPECT_EQ(piece.spawnLow, rock ? 400 : 0) << piece.name;
    EXPECT_EQ(piece.spawnHigh, glonk ? 399 : rock ? 999 : 0) << piece.name;
  }
  EXPECT_FALSE(exists("\\temp"));
}

TEST_F(DataFileTest, GoalsAreSwitchedOnByWhatTheFileSays) {
  struct Case {
    const char *times, *avoid, *land;
    Flag limit, survive, avoids, lands;
  };
  for (const auto& [times, avoid, land, limit, survive, avoids, lands] :
       {Case{"1,0,1,0", "-1,x", "-1,x", False, False, False, False},
        {"1,1,2,0", "0,x", "0,x", True, True, True, True},
        {"2,-5,0,1", "-1,Nothing", "5,x", True, True, False, True},
        {"0,0,0,0", "3,x", "-1,x", False, False, True, False}}) {
    write("\\levels\\7",
          std::string("1000\nT\nN\n1\n-1,-1,-1\n") + times + "\n" + avoid + "\n" + land + "\n");
    loadLevel("\\levels\\7", True);
    EXPECT_EQ(limitOn, limit) << times;
    EXPECT_EQ(surviveOn, survive) << times;
    EXPECT_EQ(avoidOn, avoids) << avoid;
    EXPECT_EQ(landOn, lands) << land;
  }
}

TEST_F(DataFileTest, FreestyleReadsIntervalAndRangesAlone) {
  limitOn = True;
  goalScore = 77;
  write("\\levels\\2193", "700,Glonk,1,0,99,Rock,2,100,999,Glonk,1,5,6\n");
  loadLevel("\\levels\\2193", False);
  EXPECT_EQ(spawnInterval, 700);
  EXPECT_EQ(goalScore, 77);
  EXPECT_EQ(limitOn, True);
  for (const Piece& piece : pieceCatalog) {
    if (piece.name == "Glonk" && piece.variety == 1) {
      EXPECT_EQ(piece.spawnLow, 5);  // the later of two entries stands
      EXPECT_EQ(piece.spawnHigh, 6);
    }
  }
}

TEST_F(DataFileTest, UnknownPieceShiftsTheEntriesBehindIt) {
  // "Cube" isn't known: its numbers are read as the next entry's name and variety, and so on.
  write("\\levels\\7", "700,Cube,1,Glonk,1,20,30,Glonk,2,40,50\n");
  loadLevel("\\levels\\7", False);
  for (const Piece& piece : pieceCatalog) {
    if (piece.name == "Glonk" && piece.variety == 1) {
      EXPECT_EQ(piece.spawnLow, 20);
    }
  }
  write("\\levels\\7", "700,Cube,1,0,99,Glonk,2,40,50\n");
  EXPECT_EQ(errorOf([] { loadLevel("\\levels\\7", False); }), "no error");
}

TEST_F(DataFileTest, BadLevelFilesAreNamedWithTheirField) {
  const std::string cases[][2] = {{"", "spawnInterval"},
                                  {"soon,Glonk,1,0,999", "spawnInterval"},
                                  {"0,Glonk,1,0,999", "spawnInterval"},
                                  {"700,Glonk,one,0,999", "variety"},
                                  {"700,Glonk,1,0,many", "spawnHigh"},
                                  {"700,Glonk,1,0", "spawnHigh"},
                                  {"700,Glonk,1,0,99999", "spawnHigh"},
                                  {"700,Glonk", "variety"}};
  for (const auto& [plain, field] : cases) {
    write("\\levels\\7", plain);
    const std::string error = errorOf([] { loadLevel("\\levels\\7", False); });
    EXPECT_PRED2(holds, error, "\\levels\\7") << plain;
    EXPECT_PRED2(holds, error, field) << plain;
  }
  std::string cut = arcadeLevel;
  cut.resize(cut.find("6,Bauble"));
  write("\\levels\\7", cut);
  EXPECT_PRED2(holds, errorOf([] { loadLevel("\\levels\\7", True); }), "landLeft");
}

}  // namespace
}  // namespace glonks
