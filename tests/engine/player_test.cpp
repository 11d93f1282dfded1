#include "player/player.h"

#include "rules/boardscan.h"
#include "rules/rowshift.h"
#include "tests/engine/enginetest.h"

namespace glonks {

// The program that plays, on real boards.
class PlayerTest : public EngineTest {
 protected:
  PlayerTest() { fake::useGenerator(); }

  static void runToRest() {
    do {
      movePieces();
      compactFalling();
      scanPieces();
    } while (fallingPiecesUpper > -1);
  }

  static void turn(i32 row, bool right) {
    selectedRow = static_cast<i16>(row);
    shiftRow(flagOf(!right));
    runToRest();
  }

  // Lays a board and does what the good player plans, turn by turn, until it rests content.
  static std::string played(const std::string& rows) {
    lay(rows);
    for (i32 turns = 0; turns < 6; ++turns) {
      const Plan plan = bestPlan(Eye().look(), good.foresight);
      if (plan.steps == 0) break;
      for (i32 i = 0; i < std::abs(plan.steps); ++i) turn(plan.row, plan.steps > 0);
    }
    return board();
  }
};

// Pieces that come down at different times may slam in another order than thought, so a few boards
// come out differently.
TEST_F(PlayerTest, ThinksAheadAsTheGameGoesOn) {
  constexpr i32 boards = 2000;
  RandomGenerator chance;
  const auto below = [&chance](i32 count) { return static_cast<i32>(chance.next() * count); };
  i32 different = 0;
  for (i32 i = 0; i < boards; ++i) {
    renew();
    fake::useGenerator();
    lay("");
    for (i16 column = 0; column < columnCount; ++column) {
      for (i32 height = below(7); height > 0; --height) {
        drop("SSSS1111122RC"[below(13)], column, 500, 1, 4).expiry = 1'000'000'000;
      }
    }
    runToRest();
    Position position = Eye().look().position;
    const i32 row = below(rowCount);
    const bool right = below(2) != 0;
    Gain gain;
    turnRow(position, row, right, gain);
    turn(row, right);
    if (position.traits != Eye().look().position.traits) ++different;
  }
  EXPECT_LE(different, 4);
}

TEST_F(PlayerTest, LinesUpRunsAndSparesWhatTheLevelForbids) {
  // Each row has one piece of a run up a column.
  const std::string run = "SRDRDRDRDR/DR1RDRDRDR/RDRD1DRDRD/DRDRDR1RDR/RDRDRDRD1D/DRDRDSDRDR";
  EXPECT_EQ(played(run).find_first_of("1S"), std::string::npos) << board();
  set("avoidOn=-1 avoidLeft=3 avoidName=Glonk");
  EXPECT_NE(played(run).find("1"), std::string::npos) << "forbidden: " << board();
}

}  // namespace glonks
