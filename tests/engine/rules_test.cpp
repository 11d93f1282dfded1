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
  playTable(R"(
  | drop:1,2 step                 | falls 12:2,2,0
  | drop:1,2,488,31 step          | falls 12:520,32,0
  | ~2/3 drop:1,2,489,31 step     | falls 12:520,-24,1; hears connect03
  | ~1/3 drop:1,2,600,0 step      | falls 12:520,-1,1; hears connect02
  | ~0/3 drop:1,2,600,1 step      | falls 12:520,-2,1; hears connect01
  | ~0 drop:1,2,600,2 step        | falls 12:520,-2,1; hears connect01
  | ~0 drop:1,2,600,5 step        | falls 12:520,-4,1; hears connect01
  | ~0 drop:1,2,600,-4 step       | falls 12:520,2,1; hears connect01
  // The fifth contact is the last.
  | drop:R,3 rest:163 cell:0,3    | ...R; hears connect01*5; cell R at 3 520 -8 5 tallied
  | drop:R,3,0,1,4 rest:31        | ...R; hears connect01
  ...2/...2/...2/...2/...2/...2 | drop:4,3 rest:26 cell:6,3 | ...4/...2/...2/...2/...2/...2/...2; hears connect01*5; cell 4 at 3 10 -2 5 tallied
  // The land goal counts first landings of its kind.
  | landOn=-1 landName=Rock landLeft=5 drop:R,3 rest:163 | ...R; hears connect01*5; landLeft 4
  | landOn=-1 landName=Rock landLeft=5 drop:1,3 rest:163 | ...1; hears connect01*5
  | landOn=0 landName=Rock landLeft=5 drop:R,3 rest:163  | ...R; hears connect01*5
  R/1 | landOn=-1 landName=Rock landLeft=5 free:0,0 left rest:13 | R; hears changerow connect01
  // A later piece of the column is lifted to the new floor: upward before, now down.
  | ~0 ~0 drop:1,5,519,3,4 drop:2,5,480,-3 drop:3,6 step | .....1; falls 25:435,2,1 36:2,2,0; hears connect01*2
  // A full column is fallen through, and ends the game, unless a cell is free by then.
  .1/.1/.1/.1/.1/.1/.1 | drop:2,1,495,31 free:3,1 rest:133 | .1/.1/.1/.2/.1/.1/.1; hears connect01*5
  .1/.1/.1/.1/.1/.1/.1 | drop:2,1,519,4,4 drop:2,1,519,4,4 rest:1 | hears connect01 gameover connect01 gameover; gameOver -1
  // A Bowling Ball takes the piece on top in each frame in which it is below the floor.
  | drop:W,3 rest:31              |
  ...1/...G/...U | drop:W,3 rest:31 | -; pops 10 500 0; impacts 3; hears bowling01*2 gorgon02 bowling01 bauble01; pendingSpawns 3
  ...1/...1/...1/...1/...1/...1/...1 | drop:W,3 rest:31 |
  ...1      | drop:W,3,500,5 step | -; pops 10; impacts 1; hears bowling01
  ..23/..../...4 | drop:W,3 rest:31 places | ..23//; pops 10; impacts 1; hears bowling01; at 185,450 185,450
  ...1/...1 | drop:W,3,345,4 drop:W,3,519,1 step places | ...1; falls W3:350,5,0; pops 10; impacts 1; hears bowling01; at 185,365 185,365
  )",
            acts());
  renew();
  drop('1', 0, 600);
  fake::draws = {0.9};
  movePieces();
  EXPECT_EQ(fallingPieces[0].landSound, connectSounds[2]);
}

TEST_F(RulesTest, PiecesComeByTheirDraws) {
  const std::string table = R"(
  | ~1/1000 ~6/10 range:1,1,499 range:2,400,499 spawn    | falls 16
  | ~399/1000 ~6/10 range:1,1,499 range:2,400,499 spawn  | falls 16
  | ~400/1000 ~6/10 range:1,1,499 range:2,400,499 spawn  | falls 26
  | ~499/1000 ~0/10 range:1,1,499 range:2,400,499 spawn  | falls 20
  | ~700/1000 ~9/10 range:N,750,600 range:R,500,999 spawn | falls R9
  // A slot without a range has 0 to 0, and the highest wins.
  | ~0/1000 ~6/10 spawn                                  | falls 46
  // Timers are armed after the column, then come direction or value.
  | ~0.5 ~0.6 only:S spawn                | falls S6
  | ~0.5 ~0.6 only:D spawn                | falls D6
  | ~0.5 ~0.6 ~0.75 only:B spawn          | falls B6@32500
  | ~0.5 ~0.6 ~0.75 only:U spawn          | falls U6@105000
  | ~0.5 ~0.6 ~0.75 only:G spawn          | falls G6@65000
  | ~0.5 ~0.6 ~0.75 ~0/2 only:H spawn     | falls H6>@8500
  | ~0.5 ~0.6 ~0.75 ~1/2 only:H spawn     | falls H6<@8500
  | ~0.5 ~0.6 ~0.75 ~0/200 only:C spawn   | falls c6=-100@12500
  | ~0.5 ~0.6 ~0.75 ~99/200 only:C spawn  | falls c6=-1@12500
  | ~0.5 ~0.6 ~0.75 ~100/200 only:C spawn | falls C6=1@12500
  | ~0.5 ~0.6 ~0.75 ~199/200 only:C spawn | falls C6=99@12500
  | pythagoreanDone=-1 ~0.5 ~0.6 ~0.75 ~0/200 only:C spawn   | falls C6=1@12500
  | pythagoreanDone=-1 ~0.5 ~0.6 ~0.75 ~199/200 only:C spawn | falls C6=199@12500
  // Those outside the draw.
  | ~0.45 music                 | falls N4
  | ~0.15 ~0.5 gorgon           | falls G1@60000; hears gorgon01
  | ~0.75 ~0.5 item:Slammer     | falls S7@0
  | ~0.95 ~0.5 item:Bomb        | falls B9@30000
  | ~0.05 ~0.5 ball             | falls W0@0
  // A ball for a full column takes its top at once.
  .1/.2/.3/.4/.1/.2/.3 | ~0.5 ~0.1 only:W spawn places | .2/.3/.4/.1/.2/.3; falls W1; pops 10; impacts 1; hears bowling01; at 15,-60 15,-60
  .1/.2/.3/.4/.1/.2/.3 | ~0.1 ~0 ball   | .2/.3/.4/.1/.2/.3; falls W1@0; pops 10; impacts 1; hears bowling01
  .2/.3/.4/.1/.2/.3 | ~0.1 ~0 ball      | falls W1@0
  )";
  playTable(table, acts());
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
  playTable(R"(
  1....2...3 | right                | 31....2; hears changerow
  1....2...3 | left                 | ....2...31; hears changerow
  1234123412 | right                | 2123412341; hears changerow
  1/2        | selectedRow=5 left   | hears changerow
  1/2        | left                 | .........2; falls 10:435,0,4; hears changerow
  1/2        | selectedRow=1 left   | 2; falls 19:435,0,4; hears changerow
  .4/12/31   | selectedRow=1 right  | .4/.1/31; falls 22:435,0,4; hears changerow
  B/.1       | drop:1,4 right       | ..1; falls 14 B0:435,0,4; hears changerow
  ......4/......3/......2/......1 | selectedRow=1 right | ......1; falls 27:435,0,4 36:350,0,4 46:265,0,4; hears changerow
  )",
            acts());
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
  playTable(R"(
  BDGCcHUS1          | scan    |
  BDGCcHUS1 1S       | scan    |
  ..D D              | scan scan places | pops 100; at 100,450
  1C C               | ~0.5 scan | arms C12000; pops 30; hears calculate02; pythagoreanSum 30
  1c c               | ~0 scan | arms c11000; pops -40; hears calculate01; pythagoreanSum -40
  .3/.U/2 U          | scan    | 2; falls 31:350,0,4; pops 500; hears bauble02
  4.G G              | ~0.35 ~0.25 ~0.75 scan | falls G3@55000; arms G65000; hears gorgon01
  S/1/R1./2B3 B      | scan    | -; falls 10:350,0,4 S0:265,0,4; pops 0 0 10 10 20 10; impacts 1; hears pop01
  // Due means below the tick.
  C/G/H | expiry:0,0,1000 expiry:1,0,1000 expiry:2,0,1000 scan   | arms H0 G0 C0
  C | ~0 wait:1 expiry:0,0,1000 scan                             | arms C11000; pops 30; hears calculate02; pythagoreanSum 30
  // What a Bomb has taken is gone, though it was due itself or a Slammer.
  U/B UB             | scan    | -; pops 0 0 0; impacts 1; hears pop01 bauble01; pendingSpawns 3
  C1/1B CB           | scan    | -; pops 0 0 10 30 10; impacts 1; hears pop01
  B/B B              | scan    | -; pops 0 0 0; impacts 1; hears pop01
  1/U/B U            | scan    | B; falls 10:350,0,4; pops 500; hears bauble02
  // Slams come before Shifters, and one that was slammed shifts its row all the same.
  SHS/12.3 H         | ~0 scan | 12.3; pops 25 0 0; zaps hhh; hears slam01*3 changerow
  // Directions 1 and -1; the pointer stays.
  3H.1 H             | selectedRow=5 ~0 directions:1 scan    | H.1......3; arms H7000; hears changerow
  3H.1 H             | selectedRow=5 ~0 directions:-1 scan   | .3H.1; arms H7000; hears changerow
  H3H H              | ~0 ~0 directions:1,-1 scan            | arms H7000 H7000; hears changerow*2
  .2H/H111 H         | ~0 ~0 directions:1,-1 scan | ..2/111......H; falls H3>@7000:435,0,4; arms H7000; hears changerow*2
  // The Pythagorean bonus comes once.
  C C | pythagoreanSum=1469 ~0 scan   | arms C11000; pops 30; hears calculate02; pythagoreanSum 1499
  C C | pythagoreanSum=1470 ~0 scan   | arms C11000; pops 30; hears calculate02; says PYTHAGOREAN BONUS!  2500 POINTS; pythagoreanDone -1; pythagoreanSum 1500; score 2500
  c c | pythagoreanSum=1500 ~0 scan   | arms c11000; pops -40; hears calculate01; pythagoreanSum 1460
  C C | pythagoreanDone=-1 pythagoreanSum=1470 ~0 scan | arms C11000; pops 30; hears calculate02
  c c | pythagoreanSum=-32760 ~0 scan | arms c11000; pops -40; hears calculate01; pythagoreanSum -32768
  // What lands is scanned: a Diamond pays, a Bomb that was due in flight goes off.
  | drop:D,4,519,9,4 rest:1 scan scan | ....D; pops 100; hears connect01
  // Runs between two Slammers.
  .S     | scan |
  .SS    | scan | -; pops 0 0; zaps hh; hears slam01*2
  ..S/..S | scan | -; pops 0 0; zaps vv; hears slam01*2
  S2S    | scan | -; pops 10 0 0; zaps hhh; hears slam01*3
  ..S44S | scan | -; pops 10 10 0 0; zaps hhhh; hears slam01*4; says SLAM BONUS!   1200 POINTS; score 1200
  S333S  | scan | -; pops 10 10 10 0 0; zaps hhhhh; hears slam01*5; says SLAM BONUS!   1600 POINTS; score 1600
  S11111111S | scan | -; pops 10 10 10 10 10 10 10 10 0 0; zaps hhhhhhhhhh; hears slam01*10; says SLAM BONUS!   3600 POINTS; score 3600
  S/2/2/2/2/2/S | scan | -; pops 10 10 10 10 10 0 0; zaps vvvvvvv; hears slam01*7; says SLAM BONUS!   2400 POINTS; score 2400
  SUS    | scan | -; pops 0 0 0; zaps hhh; hears bauble01 slam01*3; pendingSpawns 3
  S1.1S  | scan |
  S.1S   | scan |
  S1.S   | scan |
  S111S  | free:0,2 scan | S1.1S
  S12S   | scan |
  SCcS   | scan |
  SGHS   | scan |
  SRRS   | scan |
  S/R/S  | scan |
  S/1/2/S | scan |
  // Runs that share a Slammer or a piece are removed once, and counted as often as found.
  S1S2S  | scan | -; pops 10 0 0 10 0; zaps hhhhh; hears slam01*5; says SLAM BONUS!   2000 POINTS; score 2000
  SSS    | scan | -; pops 0 0 0; zaps hhh; hears slam01*3; says SLAM BONUS!   1200 POINTS; score 1200
  RS/S1S/RS | scan | R; falls R0:350,0,4; pops 10 0 0 0 0; zaps hhhvv; hears slam01*5; says SLAM BONUS!   2000 POINTS; score 2000
  // Zaps lie over their pieces, and what stood on them drops.
  .23/.SSR/3141 | scan places | ...R/3141; falls 21:350,0,4 32:350,0,4; pops 0 0; zaps hh; hears slam01*2; at 15,365 100,365 185,515 270,515
  )",
            acts());
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
  playTable(R"(
  .1   | remove:0,0 |
  3    | remove:0,0 places | -; pops 10; at -70,450
  R    | remove:0,0 | -; pops 20
  c    | remove:0,0 | -; pops 40
  G    | remove:0,0 | -; pops 500; hears gorgon02
  H    | remove:0,0 | -; pops 25
  U    | remove:0,0 | -; pops 0; hears bauble01; pendingSpawns 3
  M    | remove:0,0 | -; hears coin01; bank 1
  N    | remove:0,0 | -; hears music01; notesCollected 1
  B    | remove:0,0 | -; pops 0
  D    | remove:0,0 | -; pops 0
  4/2  | remove:0,0 | 4/; pops 10
  M    | bank=32767 remove:0,0          | -; hears coin01
  U    | pendingSpawns=32767 remove:0,0 | -; pops 0; hears bauble01
  // Goals go by names; a Bauble that is overdue counts for the avoid goal alone.
  2    | goalPieceName=Glonk goalPieceCount=5 avoidName=Glonk avoidLeft=5 remove:0,0 | -; pops 10; avoidLeft 4; goalPieceCount 4
  2    | goalPieceName=Rock goalPieceCount=5 avoidName=Rock avoidLeft=5 remove:0,0   | -; pops 10
  U    | goalPieceName=Bauble goalPieceCount=5 expiry:0,0,1001 remove:0,0 | -; pops 0; hears bauble01; goalPieceCount 4; pendingSpawns 3
  U    | goalPieceName=Bauble goalPieceCount=5 avoidName=Bauble avoidLeft=5 expiry:0,0,1000 remove:0,0 | -; pops 0; hears bauble01; avoidLeft 4; pendingSpawns 3
  // The last BType piece is a victory.
  T    | bTypeLeft=2 remove:0,0       | -; pops 0; bTypeLeft 1
  T    | bTypeLeft=1 ~0.99 remove:0,0 | -; pops 0; hears clapping02 clapping03 clapping01; says VICTORY!; bTypeLeft 0
  // A Pin takes what is below and by chance beside it, up to column 6.
  1P2/RDS3 | ~0/2 ~1/2 remove:1,1 | 1/...3; pops 0 0 20 0 10; impacts 1; hears pop01
  1P2/RDS3 | ~1/2 ~0/2 remove:1,1 | ..2/...3; pops 0 0 20 0 10; impacts 1; hears pop01
  P1/R2    | ~1/2 remove:1,0      | -; pops 0 20 10 10; impacts 1; hears pop01
  1P2      | ~0/2 ~0/2 remove:0,1 | 1.2; pops 0; impacts 1; hears pop01
  .....1P2/.....RDSR   | ~1/2 remove:1,6      | .......2/.......SR; pops 0 0 20 10; impacts 1; hears pop01
  .....P1/.....112     | ~0/2 ~0/2 remove:1,5 | ......1/.......2; pops 0 10 10; impacts 1; hears pop01
  ........1P/.......112 | ~0/2 remove:1,9     | ........1/.......1; pops 0 10 10; impacts 1; hears pop01
  // The second knocks the first over again, which pays and counts once more.
  PP | ~1/2 ~1/2 ~0/2 ~0/2 remove:0,0 | -; pops 0 0 0; impacts 3; hears pop01*3
  // A Bomb takes its bombable neighbours and pays twice.
  B | worth:0,0 bomb:0,0 places | -; pops 7 7; impacts 1; hears pop01; at -70,450 -70,450 -70,450
  ..S4/12R4/3BS4/DB34 | bomb:1,1 | ...4/...4/...4/D..4; falls S2:435,0,4 S2:265,0,4; pops 0 0 0 10 10 10 10 20; impacts 1; hears pop01
  ........3/........12/.........B | bomb:0,9 | -; falls 38:350,0,4; pops 0 0 10 10; impacts 1; hears pop01
  1M3/2BU/N.S | bomb:1,1 | ..S; pops 0 0 10 0 10 10; impacts 1; hears pop01 music01 bauble01 coin01; bank 1; notesCollected 1; pendingSpawns 3
  // All four Glonks make fruit, but not one from out of reach that a Pin takes.
  R2/3B4.1 | bomb:0,1 | ....1; pops 0 0 10 10 20 10; impacts 1; hears pop01
  12/3BP4  | ~1/2 ~1/2 bombable:0,2 bomb:0,1 | -; pops 0 0 10 0 10 10 10; impacts 2; hears pop01*2
  121/3B4  | bomb:0,1 | -; pops 0 0 10 10 10 10 10; impacts 1; hears pop01; says FRUIT COCKTAIL BONUS!  5000 POINTS; score 5000
  )",
            acts());
  EXPECT_EQ(cellAt(0, 0).name + cellAt(0, 1).name, "");
}

}  // namespace glonks
