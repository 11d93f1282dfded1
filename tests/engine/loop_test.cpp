#include <numeric>

#include "game/arcade.h"
#include "game/freestyle.h"
#include "game/loading/levels.h"
#include "tests/engine/enginetest.h"

namespace glonks {

class LoopTest : public EngineTest {
 protected:
  static void newGame() {
    renew();
    loadLevel("\\levels\\2193", False);
    fake::useGenerator();
  }

  // Runs a loop, its passes `pass` ms apart, to `end` ms after its start. `each` runs at the end of
  // each pass with the time since then.
  static void run(void (*loop)(), i32 pass, i32 end, const std::function<void(i32)>& each) {
    const i32 start = gameTick();
    fake::messages = [=] {
      each(gameTick() - start);
      fake::clockNow += static_cast<u32>(pass);
      if (gameTick() > start + end) gameOver = True;
    };
    loop();
  }

  // Plays half a second at each pass until the level is decided, and then to the end of the ticker.
  // Returns the time of the decision and what the ticker says.
  static std::pair<i32, std::string> playLevel(const std::function<void(i32)>& during) {
    std::pair<i32, std::string> decision;
    spawnInterval = 1000000000;
    minuteStart = gameTick();
    run(playArcade, 500, 300000, [&](i32 now) {
      during(now);
      if (levelOver == True && decision.first == 0) decision = {now, ticker()};
    });
    return decision;
  }
};

TEST_F(LoopTest, PiecesFramesAndTimePointsAreDueByTheLastOfTheirKind) {
  newGame();
  Numbers arrivals, frames, payments;
  i32 pieces = 0, shown = 0, paid = 0;
  spawnInterval = 9000;
  fake::onPicture = [](const std::string& name) {
    if (name == "flip" || name == "frame") fake::clockNow += 5;
  };
  run(play, 1, 25000, [&](i32 now) {
    if (fallingPiecesUpper >= pieces) arrivals.push_back(now);
    if (fake::picturesShown > shown && now < 100) frames.push_back(now);
    if (score > paid) payments.push_back(now);
    pieces = fallingPiecesUpper + 1;
    shown = fake::picturesShown;
    paid = score;
    if (now == 10005) fake::clockNow += 2000;  // what is late isn't made up for
  });
  EXPECT_EQ(arrivals, (Numbers{508, 9509, 18510}));
  EXPECT_EQ(frames, (Numbers{11, 42, 73}));
  EXPECT_EQ(payments, (Numbers{10001, 20002}));
  EXPECT_EQ(score, 6);
}

TEST_F(LoopTest, OneFreestyleSpawnInTwoThousandIsAMusicNoteWhileFewHaveBeenCollected) {
  const i32 cases[][3] = {{1, 8, 1}, {1, 9, 0}, {0, 0, 0}, {2, 0, 0}};
  for (const auto& [draw, collected, notes] : cases) {
    newGame();
    notesCollected = collected;
    fake::draws = {fake::drawOf(draw, 2000), fake::drawOf(600, 1000), 0.45};
    if (notes == 1) fake::draws.erase(fake::draws.begin() + 1);
    const i32 seed = fake::nextSeed;
    run(play, 1, 510, [](i32) {});
    const Piece& piece = fallingPieces.back();
    EXPECT_TRUE(piece.name == (notes == 1 ? "Music" : "Slammer") && piece.column == 4) << draw;
    EXPECT_EQ(fake::nextSeed - seed, 1 - notes) << "a note seeds nothing";
  }
}

TEST_F(LoopTest, LevelsAreDecidedByTheirGoalsAndTimers) {
  const std::tuple<const char*, i32, const char*, i32, std::string> cases[] = {
      // settings, ms at which some change, these; ms of the decision, words
      {"goalScore=-1", 0, "", 500, "VICTORY!"},
      {"goalPieceName=Glonk goalPieceCount=1", 2000, "goalPieceCount=0", 2500, "VICTORY!"},
      {"goalPieceName=Nothing goalPieceCount=1", 0, "", 500, "VICTORY!"},
      {"landOn=-1 landLeft=1", 3000, "landLeft=0", 3500, "VICTORY!"},
      {"avoidOn=-1 avoidLeft=1 goalScore=50", 4000, "avoidLeft=0 score=50", 4500, "FAILED!"},
      {"limitOn=-1 limitMinutes=1 goalScore=999", 0, "", 119000, "TIME EXPIRED"},
      {"surviveOn=-1 surviveMinutes=1 surviveSeconds=1", 0, "", 119000, "VICTORY!"},
      {"surviveOn=-1 surviveMinutes=1 goalScore=50", 0, "", 500, "VICTORY!"},
      {"surviveOn=-1 surviveMinutes=1 surviveSeconds=-5", 0, "", 60500, "VICTORY!"},
      {"limitOn=-1 limitMinutes=0 limitSeconds=-5", 0, "", 59000, "TIME EXPIRED"},
      {"limitOn=-1 limitSeconds=5 goalScore=90", 200000, "score=90", 200500, "VICTORY!"},
      {"limitOn=-1 limitMinutes=2 limitSeconds=1 surviveOn=-1 surviveSeconds=1", 0, "", 179500,
       "TIME EXPIRED"},
  };
  for (const auto& [settings, later, change, at, words] : cases) {
    newGame();
    levelOver = True;  // by a level before
    set(settings);
    const auto [decided, said] = playLevel([&](i32 now) {
      if (now >= later && now < later + 500) set(change);
    });
    EXPECT_EQ(said, words) << settings;
    EXPECT_NEAR(decided, at, 1500) << settings;
    EXPECT_EQ(levelWon, flagOf(words[0] == 'V')) << settings;
    EXPECT_EQ(holds(heard(), "clapping"), words[0] == 'V') << settings;
  }
}

// In the middle of a game a picture can't be drawn any more, sounds fail and memory runs out: every
// other step of the loop goes on.
TEST_F(LoopTest, ArcadeLoopGoesOnAfterAStepThatFailsAndLogsEachKindOnce) {
  newGame();
  goalScore = 100;
  lay(".D", "D");
  drop('1', 4, 519, 9);
  fake::onPicture = [](const std::string& name) {
    if (name == "frame") throw RuntimeError(ErrorNumber::serviceFailed, "frame");
  };
  for (const std::string number : {"01", "02", "03"}) {
    fake::brokenSamples.insert("_connect" + number);
    fake::brokenSamples.insert("_clapping" + number);
  }
  const auto decision = playLevel([](i32 now) {
    if (now != 500) return;
    ++fake::clockNow;
    throw std::bad_alloc();
  });
  EXPECT_EQ(decision.second, "VICTORY!");  // by the Diamond's popup, which climbs all the same
  EXPECT_EQ(levelWon, True);
  const Names log = logged();
  EXPECT_EQ(std::set<std::string>(log.begin(), log.end()).size(), log.size());
  const std::string all = std::accumulate(log.begin(), log.end(), std::string());
  for (const char* failure : {"429, frame", "7, std::bad_alloc", "_connect0", "_clapping0"}) {
    EXPECT_PRED2(holds, all, failure);
  }
}

// Two Bombs in one frame make fruit whose pictures can't be loaded: what came before stays, nothing
// of the game touches what has been given back, and the log has two lines about it.
TEST_F(LoopTest, FruitThatCantBeLoadedEndsTheGameCleanly) {
  const std::tuple<void (*)(), Action, std::string> cases[] = {
      {play, [] { throw RuntimeError(ErrorNumber::fileNotFound, "cherry"); }, "53, cherry"},
      {playArcade, [] { throw std::length_error("no room"); }, "5, no room"}};
  for (const auto& [loop, fail, reason] : cases) {
    newGame();
    goalScore = 90000;
    fake::onPicture = [fail = fail](const std::string& name) {
      if (name == "cherry") fail();
    };
    run(loop, 27, 1000, [](i32 now) {
      if (now == 27) lay("12...12/3B4..3B4/R....RRR", "B");
      drawn();
      logged();
    });
    for (const std::string& line : drawn()) EXPECT_EQ(line.substr(0, 5), "load ");
    EXPECT_EQ((Numbers{score, fake::windowOpen, paused, levelWon, gameTick()}),
              (Numbers{10000, false, False, False, 1054}));
    EXPECT_EQ(entryOf('1').value + entryOf('3').value, 120);
    EXPECT_EQ(logged(), (Names{"error occured in fruitize function.", reason,
                               "destroy - shutting down directx   "}));
  }
}

}  // namespace glonks
