#include "game/loading/levels.h"
#include "game/modes.h"
#include "tests/headless/headlessgame.h"
#include "tests/headless/recordedgame.h"
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
    const std::string name = std::to_string(level) + ".txt";
    const RecordedGame game =
        readRecordedGame(std::filesystem::path(GLONKS_SOURCE) / "tests/levels/wins" / name);
    const HeadlessResult result =
        playHeadless({modeTitled("Arcade"), level, 0, game.seed}, replayOf(game.keys));
    EXPECT_TRUE(result.ending == Ending::won && result.length == game.length)
        << readLevelHead(levelPath(level)).title << " ended after " << result.length << " ms";
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
