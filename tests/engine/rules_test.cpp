#include "rules/boardscan.h"
#include "rules/generation.h"
#include "rules/items.h"
#include "rules/removal.h"
#include "rules/rowshift.h"
#include "rules/slamming.h"
#include "tests/engine/enginetest.h"

namespace glonks {

class RulesTest : public EngineTest {
 protected:
  static i16 number(const std::string& word) { return static_cast<i16>(std::stoi(word)); }

  static std::string at(i32 x, i32 y) { return std::to_string(x) + "," + std::to_string(y) + " "; }

  // The acts of the tables below, one for each rule that is called from outside.
  static Acts acts() {
    return {
        {"step", [](const Words&) { movePieces(), compactFalling(); }},
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
        {"free", [](const Words& at) { cellAt(number(at[0]), number(at[1])).occupied = False; }},
        {"expiry",
         [](const Words& at) { cellAt(number(at[0]), number(at[1])).expiry = std::stoi(at[2]); }},
        {"worth", [](const Words& at) { cellAt(number(at[0]), number(at[1])).value = 7; }},
        {"bombable", [](const Words& at) { cellAt(number(at[0]), number(at[1])).bombable = True; }},
        {"directions",
         [](const Words& words) {  // of Shifters, in scan order
           std::size_t next = 0;
           for (Row& row : playfield) {
             for (Cell& cell : row.cells) {
               if (cell.isShifter == True) cell.direction = number(words[next++]);
             }
           }
         }},
        {"cell",
         [](const Words& place) {
           const Cell& cell = cellAt(number(place[0]), number(place[1]));
           note("cell " + stateOf(cell) + (cell.tallied == True ? " tallied" : ""));
         }},
        {"places", [](const Words&) {
           std::string places;
           for (const ScorePopup& popup : scorePopups) places += at(popup.x, popup.y);
           for (const Impact& impact : impacts) places += at(impact.x, impact.y);
           for (const Zap& zap : zaps) places += at(zap.x, zap.y);
           note("at " + places.erase(places.size() - 1));
         }}};
  }
};

TEST_F(RulesTest, PiecesFallBounceAndLand) {
  playTable("falling", acts());
  renew();
  drop('1', 0, 600);
  fake::draws = {0.9};
  movePieces();
  EXPECT_EQ(fallingPieces[0].landSound, connectSounds[2]);
}

TEST_F(RulesTest, PiecesComeByTheirDraws) {
  playTable("generation", acts());
  renew();
  fake::draws = {0.5, 0, 0.5, 0, 0, 0, 0};
  for (i32 i = 0; i < 2; ++i) spawnPiece();
  dumpGorgon();
  dropNamed("Music");
  EXPECT_EQ(fake::seedings, 2);
  fake::draws.clear();
  compactFalling();
  EXPECT_EQ(fallingPiecesUpper, 3);  // all alive
}

TEST_F(RulesTest, RowsShiftAndWhatHangsIsLiftedLowestFirst) {
  playTable("rowshift", acts());
  fallToRest();
  EXPECT_EQ(board(), "......4/......3/......12");
  cellAt(2, 6).velocity = -8;
  cellAt(2, 6).expiry = 77;
  cellAt(1, 0).name = "ghost";
  shiftRow(False);  // what hangs now falls as what it is, and free cells are wiped
  EXPECT_EQ(cellAt(1, 0).name, "");
  EXPECT_EQ(stateOf(cellAt(1, 7)).substr(0, 10), "3 at 7 435");
  EXPECT_EQ(stateOf(fallingPieces[0]), "4 at 6 350 -8 4");
  EXPECT_EQ((Numbers{fallingPieces[0].expiry, fallingPieces[0].tallied, fallingPieces[0].alive}),
            (Numbers{77, True, True}));
}

TEST_F(RulesTest, ScanLetsPiecesActAndPairsSlammers) {
  playTable("scan", acts());
  renew();
  lay(".1S");  // a Slammer that the scan has seen closes its run though it is gone
  checkSlams({{0, 0}, {2, 0}}, 1);
  EXPECT_EQ(board() + heard(), "slam01*2");
  lay("S");  // a free cell opens it
  checkSlams({{0, 0}, {1, 0}}, 1);
  EXPECT_EQ(board(), "S");
  lay("BS", "B");
  cellAt(0, 0).isSlammer = True;  // goes off before it is seen as a Slammer
  scanPieces();
  EXPECT_EQ(board(), ".S");
}

TEST_F(RulesTest, RemovalsPayCountAndSpread) {
  playTable("removal", acts());
  EXPECT_EQ(cellAt(0, 0).name + cellAt(0, 1).name, "");
}

}  // namespace glonks
