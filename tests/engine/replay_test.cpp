#include <cstdlib>
#include <fstream>
#include <map>
#include <sstream>

#include "rules/items.h"
#include "shell/playbutton.h"
#include "tests/engine/boardtest.h"

namespace glonks {

// Whole games from fixed seeds and scripted keys, started by the Play button. Every ten seconds
// and at the end the game's state is written down, one field to a line, and compared with the
// record under replays/. With GLONKS_RECORD set in the environment the records are made anew:
// look at what has changed before you keep them.
class ReplayTest : public BoardTest {
 protected:
  struct Script {
    std::string name;
    std::string mode;
    std::string level;                            // plain text
    std::vector<std::vector<i32>> keys;           // pressed in turn, one every 180 ms
    std::map<i32, std::function<void()>> events;  // by ms since the first pass
  };

  ReplayTest() {
    ownFolderOfLinks("levels");
    fake::useGenerator();
    levelWon = False;
    notesCollected = 0;
  }

  // All numbers of the pieces, mixed into one.
  static u32 digest() {
    u32 mixed = 2166136261U;
    const auto mix = [&](const Piece& piece) {
      for (const i32 number :
           {i32{piece.imageIndex}, i32{piece.y}, i32{piece.velocity}, i32{piece.bounces},
            i32{piece.tallied}, piece.expiry, piece.value, i32{piece.direction}}) {
        mixed = (mixed ^ static_cast<u32>(number)) * 16777619U;
      }
    };
    for (const Row& row : playfield) {
      for (const Cell& cell : row.cells) {
        if (cell.occupied == True) mix(cell);
      }
    }
    for (const Piece& piece : fallingPieces) mix(piece);
    return mixed;
  }

  void note(const std::string& field, const std::string& value) {
    trace_ << field << ": " << value << '\n';
  }

  void noteState(i32 now) {
    std::map<std::string, i32> sounds;
    for (const std::string& sound : fake::sounds) ++sounds[sound];
    std::string counted;
    for (const auto& [sound, count] : sounds) {
      counted += sound + "*" + std::to_string(count) + " ";
      everHeard_.insert(sound);
    }
    fake::sounds.clear();
    trace_ << "== " << now << " ms\n";
    note("score", std::to_string(score) + " pointer " + std::to_string(selectedRow));
    note("board", board());
    note("falling", falling());
    note("pieces", std::to_string(digest()));
    note("popups", popups());
    note("effects", std::to_string(impactsUpper) + " " + std::to_string(zapsUpper) + " " +
                        std::to_string(frogsUpper));
    note("ticker", ticker());
    note("sounds", counted);
    std::string stock;
    for (const i16 count : itemStock) stock += " " + std::to_string(count);
    note("held", std::to_string(bank) + " " + std::to_string(notesCollected) + stock);
    note("goals", std::to_string(goalPieceCount) + " " + std::to_string(landLeft) + " " +
                      std::to_string(avoidLeft) + " " + std::to_string(limitMinutes) + " " +
                      std::to_string(surviveMinutes) + " " + std::to_string(levelOver) +
                      std::to_string(levelWon));
  }

  void play(const Script& script) {
    putBytes("\\plain", script.level);
    for (const char* file : {"\\levels\\2193", "\\levels\\7"}) {
      std::filesystem::remove(nativePath(file));
      scrambleFile("\\plain", file);
    }
    addItem(tMode, script.mode);
    addItem(tLevels, script.name);
    tLevels.itemData.back() = 7;
    tMode.listIndex = static_cast<i16>(tMode.items.size() - 1);
    tLevels.listIndex = static_cast<i16>(tLevels.items.size() - 1);
    i32 start = -1, nextKey = 0, nextNote = 10000;
    std::size_t pressed = 0;
    auto event = script.events.begin();
    fake::messages = [&] {
      if (start < 0) {
        start = gameTick();
        // What is drawn is of no account here, and a small picture is drawn sooner.
        backBuffer = std::make_shared<DirectDrawSurface7>(8, 8);
        backBuffer->SetFont(gameFont);
      }
      fake::clockNow += 27;
      const i32 now = gameTick() - start;
      if (!tickerLines.empty()) everRead_.insert(ticker());
      for (; event != script.events.end() && event->first <= now; ++event) event->second();
      if (now >= nextKey && !script.keys.empty()) {
        fake::pressKeys(script.keys[pressed++ % script.keys.size()]);
        nextKey += 180;
      }
      if (now >= nextNote) noteState(now);
      if (now >= nextNote) nextNote += 10000;
    };
    main_BtnRun_Click();
    noteState(gameTick() - start);
  }

  // Compares what has been written down with the record of this name.
  void expectRecord(const std::string& name) const {
    const std::string path = std::string(GLONKS_SOURCE) + "/tests/engine/replays/" + name + ".txt";
    if (std::getenv("GLONKS_RECORD") != nullptr) std::ofstream(path) << trace_.str();
    std::ifstream record(path);
    std::istringstream played(trace_.str());
    std::string time, expected, seen;
    while (std::getline(record, expected)) {
      std::getline(played, seen);
      if (expected.compare(0, 2, "==") == 0) time = expected;
      ASSERT_EQ(seen, expected) << name << " " << time;
    }
    EXPECT_FALSE(std::getline(played, seen)) << name << " goes on: " << seen;
  }

  std::ostringstream trace_;
  std::set<std::string> everHeard_;
  std::set<std::string> everRead_;
};

constexpr i32 escape = 1, one = 2, two = 3, three = 4, four = 5, up = 200, left = 203, right = 205,
              down = 208;

TEST_F(ReplayTest, FreestyleWithEveryItemAndEffect) {
  itemStock = {9, 9, 9, 9, 0, 0};
  Script script{
      "freestyle",
      "Freestyle",
      "900\nGlonk,1,0,149\nGlonk,2,150,299\nGlonk,3,300,399\nGlonk,4,400,499\nSlammer,0,500,699\n"
      "Bomb,0,700,729\nCalculator,0,730,759\nDiamond,0,760,779\nShifter,0,780,809\n"
      "Money,0,810,829\nGorgon,0,830,859\nBauble,0,860,879\nBowling Ball,0,880,929\n"
      "Music,0,930,949\nPin,0,950,969\nBType,0,970,979\nRock,1,980,999\n",
      {{left}, {up},   {left}, {one},   {right}, {up}, {left},  {right}, {four},       {down},
       {left}, {left}, {up},   {three}, {right}, {up}, {right}, {two},   {down, left}, {left}},
      {}};
  script.events[0] = [] { score = 59990, pythagoreanSum = 1480, bTypeLeft = 1; };
  script.events[13000] = [] { lay("C"), cellAt(0, 0).expiry = 0; };
  script.events[17000] = [] {
    lay("..121/..3B4.TP/.R1PRHD/S22SRMH/R3NGCcU");
    for (Row& row : playfield) {
      for (Cell& cell : row.cells) cell.expiry = cell.isDiamond == True ? cell.expiry : 0;
    }
  };
  script.events[25000] = [] {
    lay("UUUUUUUUUU");
    dropItem("Bowling Ball");
  };
  script.events[40000] = [] { lay(".2T2/.S.S/S4444SSMS"), bTypeLeft = 1; };
  script.events[150000] = [] { fake::pressKeys({escape}); };
  play(script);
  expectRecord(script.name);
  for (const std::string& sample : fake::samplesLoaded) {
    if (sample == "_gameover" || holds(sample, "clapping")) continue;
    EXPECT_EQ(everHeard_.count(sample), 1U) << sample;
  }
  for (const char* words : {"SLAM BONUS!", "FRUIT COCKTAIL BONUS!  5000", "PYTHAGOREAN BONUS!",
                            "FROG BONUS!", "VICTORY!"}) {
    const bool read = std::any_of(everRead_.begin(), everRead_.end(),
                                  [&](const std::string& line) { return holds(line, words); });
    EXPECT_TRUE(read) << words;
  }
}

TEST_F(ReplayTest, ArcadeIsWonAndLostInEachWay) {
  const std::string pieces =
      "\nGlonk,1,0,299\nGlonk,2,300,499\nGlonk,4,500,599\nSlammer,0,600,799\nRock,1,800,899\n"
      "Bomb,0,900,949\nShifter,0,950,999\n";
  const std::vector<std::vector<i32>> keys = {{left}, {up}, {left}, {right}, {up}, {down}, {left}};
  const auto layRun = [] { lay("..R/S111S/14R4R"); };
  const auto blastRocks = [] {
    lay("R/1BR");
    cellAt(0, 1).expiry = 0;
  };
  const Script scripts[] = {
      {"won by its goals",
       "Arcade",
       "1500\nGoals\nNext\n8\n4,Glonk,2000,3,30,-1,-1,-1,-1,9,Slammer",
       keys,
       {{30000, layRun}}},
      {"won by survival",
       "Arcade",
       "2500\nSurvive\nNext\n8\n-1,-1,-1,-1,-1,1,30,9,Rock,-1,-1",
       keys,
       {}},
      {"lost by the avoid goal",
       "Arcade",
       "1500\nAvoid\nNext\n8\n9,Glonk,-1,-1,-1,-1,-1,2,Rock,-1,-1",
       keys,
       {{20000, blastRocks}}},
      {"lost by the time limit",
       "Arcade",
       "2500\nLimit\nNext\n8\n-1,-1,90000,1,30,-1,-1,-1,-1,-1,-1",
       keys,
       {}},
      {"lost by a full column",
       "Arcade",
       "400\nFull\nNext\n8\n99,Bomb,-1,-1,-1,-1,-1,-1,-1,-1,-1",
       keys,
       {}},
      {"given up",
       "Arcade",
       "1500\nEscape\nNext\n8\n99,Bomb,-1,-1,-1,-1,-1,-1,-1,-1,-1",
       keys,
       {{15000, [] { fake::pressKeys({escape}); }}}},
  };
  for (Script script : scripts) {
    script.level += pieces;
    note("LEVEL", script.name);
    play(script);
    EXPECT_EQ(levelWon == True, script.name.substr(0, 3) == "won") << script.name;
  }
  EXPECT_EQ(fake::boxes.size(), 1U) << "two levels won, with the same reward";
  expectRecord("arcade");
}

}  // namespace glonks
