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

}  // namespace
}  // namespace glonks
