#include "tests/levels/wins.h"
#include "game/loading/levels.h"
#include "game/modes.h"
#include "player/player.h"
#include "tests/headless/headlessgame.h"
#include "tests/tempfolder.h"

namespace glonks {
namespace {

class RecordedWins : public TempFolder {
 protected:
  RecordedWins() { setUpHeadless(folder); }
};

// tools/record_wins makes the records again when rules, pieces or levels have been changed.
TEST_F(RecordedWins, EachLevelIsWonByItsRecordedGame) {
  for (const i32 level : arcadeChain()) {
    const RecordedGame game = recordOf(level);
    const HeadlessResult result =
        playHeadless({modeTitled("Arcade"), level, 0, game.seed}, replayOf(game.keys));
    EXPECT_TRUE(result.ending == Ending::won && result.length == game.length)
        << readLevelHead(levelPath(level)).title << " ended after " << result.length << " ms";
  }
}

// If it doesn't, the curve in docs/levels.md isn't its own any more: measure again. The levels are
// the shortest with Bombs and with Bowling Balls.
TEST_F(RecordedWins, TheGoodPlayerWouldStillPressTheKeysOfItsRecords) {
  for (const i32 level : {3128, 3134}) {
    const RecordedGame game = recordOf(level);
    Player player(good);
    const HeadlessResult result = playHeadless({modeTitled("Arcade"), level, 0, game.seed},
                                               [&](i32) { return player.nextKey(); });
    EXPECT_TRUE(std::equal(result.keys.begin(), result.keys.end(), game.keys.begin(),
                           game.keys.end(),
                           [](const PressedKey& a, const PressedKey& b) {
                             return a.time == b.time && a.code == b.code;
                           }))
        << level;
  }
}

TEST_F(RecordedWins, ARecordThatIsNoneIsNamedWithItsLine) {
  for (const std::string line : {"12 Sideways", "x Up", "12 Up Up", "seed 0"}) {
    putBytes("\\record", "seed 3\nlength 90\n" + line + "\n");
    EXPECT_PRED2(holds, errorOf([] { readRecordedGame(nativePath("\\record")); }),
                 "record, line 3: no line of a recorded game: " + line);
  }
  EXPECT_PRED2(holds, errorOf([] { readRecordedGame("none"); }), "none can't be opened.");
}

}  // namespace
}  // namespace glonks
