#include <cstdlib>
#include <fstream>
#include <sstream>

#include "rules/items.h"
#include "rules/lane.h"
#include "shell/musicpage.h"
#include "shell/playbutton.h"
#include "tests/engine/enginetest.h"

namespace glonks {

// Whole games from fixed seeds and scripted keys, started by the Play button. Every ten seconds
// and at the end the game's state is written down, one field to a line, with digests of all that
// has been drawn and heard, and compared with the record under replays/. With GLONKS_RECORD set in
// the environment the records are made again: look at what has changed before you keep them.
class ReplayTest : public EngineTest {
 protected:
  struct Script {
    std::string name;
    std::string level;             // plain text
    Words keys;                    // pressed in turn, one every 180 ms
    std::map<i32, Action> events;  // by ms since the first pass
  };

  ReplayTest() { ownFolderOfLinks("levels"); }

  static u32 digestOf(const Names& lines) {
    u32 mixed = 2166136261U;
    for (const std::string& line : lines) {
      for (const char c : line + "\n") mixed = (mixed ^ static_cast<u32>(c)) * 16777619U;
    }
    return mixed;
  }

  // All that a game has loaded and made new, and its loading screens.
  void noteLoaded() {
    for (const std::string& sample : fake::samplesLoaded) trace_ << sample << " ";
    for (const std::string& line : fake::drawn) trace_ << "\n" << line;
    for (const auto& [name, value] : gameState()) trace_ << "\n" << name << ": " << value;
    trace_ << "\n";
  }

  // What has been drawn last, at least a frame, line by line.
  void noteFrame() {
    const std::size_t skipped = std::max<std::size_t>(fake::drawn.size(), 60) - 60;
    for (std::size_t i = skipped; i < fake::drawn.size(); ++i) trace_ << fake::drawn[i] << "\n";
  }

  void noteState(i32 now) {
    Names pieces;
    const auto add = [&](const Piece& piece) {
      pieces.push_back(stateOf(piece) + " " + std::to_string(piece.expiry) + " " +
                       std::to_string(piece.value) + " " + std::to_string(piece.direction));
    };
    for (const Row& row : playfield) {
      for (const Cell& cell : row.cells) {
        if (cell.occupied == True) add(cell);
      }
    }
    for (const Piece& piece : fallingPieces) add(piece);
    const Names sounds = std::exchange(fake::sounds, {});
    std::string state = outcome();
    for (std::size_t at = 0; (at = state.find("; ", at)) != std::string::npos;) {
      state.replace(at, 2, "\n");
    }
    trace_ << "== " << now << " ms\n"
           << state << "\npieces " << digestOf(pieces) << "\nsounds " << sounds.size() << " "
           << digestOf(sounds) << "\ndrawn " << fake::drawn.size() << " " << digestOf(drawn())
           << "\nlevel " << limitMinutes << " " << surviveMinutes << " " << levelOver << levelWon
           << "\n";
  }

  void play(const std::string& mode, const Script& script) {
    for (const char* file : {"\\levels\\2193", "\\levels\\2194", "\\levels\\7"}) {
      std::filesystem::remove(nativePath(file));
      putScrambled(file, script.level);
    }
    renew();
    dirtyGame();
    paused = False;
    itemStock.fill(9);
    stockOf(bonusSongItem) = 0;
    openBonusSongs();
    songNames = Names(7);
    fake::useGenerator();
    choose(mode, script.name);
    fake::asked = [this] {
      trace_ << (fake::windowOpen ? "over the game: " : "") << fake::boxes.back() << "\n";
    };
    const bool first = trace_.tellp() == 0;
    trace_ << "LEVEL " << script.name << "\n";
    i32 start = -1, nextKey = 0, nextNote = 0;
    std::size_t pressed = 0;
    auto event = script.events.begin();
    fake::messages = [&] {
      if (start < 0) {
        start = gameTick();
        if (first) noteLoaded();
      }
      fake::clockNow += 27;
      const i32 now = gameTick() - start;
      for (; event != script.events.end() && event->first <= now; ++event) event->second();
      if (now >= nextKey && !script.keys.empty()) {
        press(script.keys[pressed++ % script.keys.size()], 0);
        nextKey += 180;
      }
      if (now < nextNote) return;
      noteState(now);
      nextNote += 10000;
    };
    main_BtnRun_Click();
    noteFrame();
    noteState(gameTick() - start);
    for (const i16 count : itemStock) trace_ << count << " ";
    for (const std::string& entry : logged()) trace_ << "\n" << entry;
    trace_ << "\n";
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
};

TEST_F(ReplayTest, FreestyleWithEveryItemAndEffect) {
  const auto layDue = [](const std::string& rows) { lay(rows, "CGHUBc"); };
  play("Freestyle",
       {"freestyle",
        "900\nGlonk,1,0,149\nGlonk,2,150,299\nGlonk,3,300,399\nGlonk,4,400,499\nSlammer,0,500,699\n"
        "Bomb,0,700,729\nCalculator,0,730,759\nDiamond,0,760,779\nShifter,0,780,809\n"
        "Money,0,810,829\nGorgon,0,830,859\nBauble,0,860,879\nBowling Ball,0,880,929\n"
        "Music,0,930,949\nPin,0,950,969\nBType,0,970,979\nRock,1,980,999\n",
        {"Left", "Up",   "Left", "1", "Right", "Up", "Left",  "Right", "4",         "Down",
         "Left", "Left", "Up",   "3", "Right", "Up", "Right", "2",     "Down+Left", "Left"},
        {{0, [] { score = 60000, pythagoreanSum = 1480, bTypeLeft = 1; }},
         {13000, [=] { layDue("C"); }},
         {17000, [=] { layDue("..121/..3B4.TP/.R1PRHD/S22SRMH/R3NGCcU"); }},
         {20500, [=] { layDue(".121/.3B4"); }},
         {25000, [] { lay("UUUUUUUUUU"), dropItem("Bowling Ball"); }},
         {40000, [] { lay(".2T2/.S.S/S4444SSMS"), bTypeLeft = 1; }},
         {60000, [] { fake::screenIsLost = true; }},
         {61000, [] { fake::screenIsLost = false; }},
         {62000, [] { press("P", 0); }},
         {150000, [] { press("Escape", 0); }}}});
  expectRecord("freestyle");
}

TEST_F(ReplayTest, ArcadeIsWonAndLostInEachWay) {
  const std::string pieces =
      "\nGlonk,1,0,299\nGlonk,2,300,499\nGlonk,4,500,599\nSlammer,0,600,799\nRock,1,800,899\n"
      "Bomb,0,900,949\nShifter,0,950,999\n";
  const Script scripts[] = {
      {"won by its goals",
       "1500\nGoals\nNext\n8\n4,Glonk,2000,3,30,-1,-1,-1,-1,9,Slammer",
       {},
       {{30000, [] { lay("..R/S111S/14R4R"); }}}},
      {"won by survival", "2500\nSurvive\nNext\n8\n-1,-1,-1,-1,-1,1,30,9,Rock,-1,-1", {}, {}},
      {"lost by a full column", "400\nFull\nNext\n8\n99,Bomb,-1,-1,-1,-1,-1,-1,-1,-1,-1", {}, {}},
      {"given up",
       "1500\nEscape\nNext\n8\n99,Bomb,-1,-1,-1,-1,-1,-1,-1,-1,-1",
       {},
       {{15000, [] { press("Escape", 0); }}}}};
  for (Script script : scripts) {
    script.level += pieces;
    script.keys = {"Left", "Up", "Left", "Right", "Up", "Down", "Left"};
    play("Arcade", script);
  }
  expectRecord("arcade");
}

TEST_F(ReplayTest, BTypeIsWonByTheLastPieceAndLostByAFullColumn) {
  const std::string pieces = "\nGlonk,1,0,399\nSlammer,0,400,699\nBomb,0,700,899\nRock,1,900,999\n";
  const auto layLast = [] {
    lay("..T4/.RBR/S1T1STTTS4", "B");
    bTypeLeft = 5;
  };
  play("B-Type", {"won", "1500" + pieces, {"Left", "1", "Up", "Right", "4"}, {{25000, layLast}}});
  play("B-Type", {"lost", "400" + pieces, {"Left", "Down", "Left", "Up"}, {}});
  expectRecord("btype");
}

TEST_F(ReplayTest, BowlingIsPlayedToItsLastBallAndLeft) {
  const auto standBelowTheBall = [] {
    Piece* ball = ballInFlight();
    if (ball == nullptr || ball->y < 100 || ball->y > 103) return;
    lay("...P/..PP/.PPP/PPPP");
    ball->column = 3;
  };
  Script perfect = {"perfect", "", {}, {}};
  for (i32 time = 0; time < 150000; time += 27) perfect.events[time] = standBelowTheBall;
  play("Midnight Bowling", perfect);
  play("Midnight Bowling", {"played", "", {"Left", "Up", "Left", "Up", "Right", "Down"}, {}});
  play("Midnight Bowling", {"left", "", {}, {{30000, [] { press("Escape", 0); }}}});
  expectRecord("bowling");
}

}  // namespace glonks
