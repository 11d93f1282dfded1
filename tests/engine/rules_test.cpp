#include "game/modes.h"
#include "game/playloop.h"
#include "present/effectdrawing.h"
#include "present/effects/applause.h"
#include "present/effects/effects.h"
#include "present/effects/ticker.h"
#include "present/endquestion.h"
#include "present/goaldisplay.h"
#include "present/itemdisplay.h"
#include "present/scoresheet.h"
#include "rules/boardscan.h"
#include "rules/bombs.h"
#include "rules/bowlingscore.h"
#include "rules/generation.h"
#include "rules/items.h"
#include "rules/lane.h"
#include "rules/removal.h"
#include "rules/rowshift.h"
#include "rules/slamming.h"
#include "tests/engine/enginetest.h"

namespace glonks {

class RulesTest : public EngineTest {
 protected:
  static i16 number(const std::string& word) { return static_cast<i16>(std::stoi(word)); }

  static Cell& cellOf(const Words& place) { return cellAt(number(place[0]), number(place[1])); }

  static void noteDrawn() {
    std::string all = "draws";
    for (const std::string& line : drawn()) all += " / " + line;
    note(all);
  }

  static void noteBowling(const BowlingGame& game) {
    std::string all = "sheet";
    for (const BowlingFrame& frame : game.frames) {
      if (!frame.marks.empty()) all += " " + frame.marks;
      if (frame.total >= 0) all += " " + std::to_string(frame.total);
    }
    note(all + "; " + std::to_string(game.points) + " points" + (game.newRack ? "; new rack" : "") +
         (game.over ? "; over" : ""));
  }

  // The acts of the tables below, one for each rule that is called from outside.
  static Acts acts() {
    return {
        {"step", [](const Words&) { movePieces(), compactFalling(); }},
        {"rules", [](const Words&) { stepRules(runPlainly); }},
        {"scan", [](const Words&) { scanPieces(); }},
        {"spawn", [](const Words&) { spawnPiece(); }},
        {"music", [](const Words&) { dropNamed("Music"); }},
        {"gorgon", [](const Words&) { dumpGorgon(); }},
        {"item", [](const Words& words) { dropItem(words[0]); }},
        {"ball", [](const Words&) { dropItem("Bowling Ball"); }},
        {"left", [](const Words&) { shiftRow(True); }},
        {"right", [](const Words&) { shiftRow(False); }},
        {"remove", [](const Words& at) { removePiece(number(at[0]), number(at[1])); }},
        {"bomb", [](const Words& at) { explodeBomb(number(at[0]), number(at[1])); }},
        {"applaud", [](const Words&) { applause(); }},
        {"popup", [](const Words& words) { pushPopup(0, number(words[0]), std::stoi(words[1])); }},
        {"popups", [](const Words&) { drawPopups(), noteDrawn(); }},
        {"question", [](const Words&) { showEndQuestion(), noteDrawn(); }},
        {"goals", [](const Words&) { drawGoals(), noteDrawn(); }},
        {"counters",
         [](const Words& mode) {
           gameMode = modeTitled(mode[0]);
           itemStock = {3, 0, 12, 7, 99, 99};
           drawItems();
           noteDrawn();
         }},
        {"sheet",
         [](const Words& pins) {
           bowlingRolls.clear();
           for (const std::string& taken : pins) bowlingRolls.push_back(number(taken));
           noteBowling(bowlingGame(bowlingRolls));
         }},
        {"drawsheet", [](const Words&) { drawScoreSheet(), noteDrawn(); }},
        {"pins", [](const Words&) { setPins(); }},
        {"standing", [](const Words&) { note("standing " + std::to_string(pinsStanding())); }},
        {"sweep", [](const Words&) { sweepPins(); }},
        {"fill", [](const Words&) { itemStock.fill(1); }},
        {"stock",
         [](const Words&) {
           std::string counts;
           for (const i16 count : itemStock) counts += std::to_string(count);
           note("stock " + counts);
         }},
        // Makes one kind the only one that is drawn.
        {"only",
         [](const Words& letter) {
           for (Piece& entry : pieceCatalog) entry.spawnLow = 1, entry.spawnHigh = 0;
           entryOf(letter[0][0]).spawnHigh = 999;
         }},
        {"range",
         [](const Words& range) {
           entryOf(range[0][0]).spawnLow = number(range[1]);
           entryOf(range[0][0]).spawnHigh = number(range[2]);
         }},
        {"free", [](const Words& place) { cellOf(place).occupied = False; }},
        {"slammer", [](const Words& place) { cellOf(place).isSlammer = True; }},
        {"expiry", [](const Words& place) { cellOf(place).expiry = std::stoi(place[2]); }},
        {"direction", [](const Words& place) { cellOf(place).direction = number(place[2]); }},
        {"cell", [](const Words& place) {
           const Cell& cell = cellOf(place);
           note("cell " + stateOf(cell) + (cell.tallied == True ? " tallied" : ""));
         }}};
  }
};

TEST_F(RulesTest, PiecesFallBounceAndLand) { playTable("falling", acts()); }

TEST_F(RulesTest, PiecesComeByTheirDraws) { playTable("generation", acts()); }

TEST_F(RulesTest, RowsShiftAndWhatHangsIsLiftedLowestFirst) { playTable("rowshift", acts()); }

TEST_F(RulesTest, ScanLetsPiecesActAndPairsSlammers) { playTable("scan", acts()); }

TEST_F(RulesTest, SlammerThatHasGoneSinceTheScanStillClosesItsRun) {
  lay(".1S");
  checkSlams({{0, 0}, {2, 0}}, 1);
  EXPECT_EQ(board(), "");
}

TEST_F(RulesTest, RemovalsPayCountAndSpread) {
  playTable("removal", acts());
  EXPECT_EQ(cellAt(0, 0).name + cellAt(0, 1).name, "");
}

TEST_F(RulesTest, BowlingIsCountedAsInTheSport) { playTable("bowling", acts()); }

TEST_F(RulesTest, LastKeyOfTheOrderActsOnceTheGateIsOpen) { playTable("keys", acts()); }

// Lines of the top band, as "text at x,y".
TEST_F(RulesTest, CountersAndGoalsStandInTheirOrderAndPopupsPay) { playTable("topband", acts()); }

TEST_F(RulesTest, TickerTakesWhatItsPlacesHold) {
  pushMessage(std::string(700, 'x'));
  EXPECT_EQ((Numbers{tickerUpper, tickerLines.back().x}), (Numbers{635, 32750}));
  pushMessage("");
  EXPECT_EQ(tickerUpper, -1);
}

}  // namespace glonks
