#include <cmath>

#include "game/arcade.h"
#include "game/freestyle.h"
#include "game/loading/levels.h"
#include "storage/files/log.h"
#include "tests/engine/enginetest.h"

namespace glonks {

class LoopTest : public EngineTest {
 protected:
  LoopTest() { newGame(); }

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

  struct Decision {
    i32 at = -1;  // ms after the start of the loop
    std::string words;
    i32 framesToEnd = 0;
  };

  // Plays half a second at each pass until the level is decided, and frame by frame then.
  static Decision playLevel(const std::function<void(i32)>& during) {
    Decision decision;
    spawnInterval = 1000000000;
    minuteStart = gameTick();
    run(playArcade, 0, 300000, [&](i32 now) {
      during(now);
      if (levelOver == True && decision.at < 0) decision = {now, ticker(), -fake::picturesShown};
      fake::clockNow += levelOver == True ? 27 : 500;
    });
    decision.framesToEnd += fake::picturesShown;
    return decision;
  }
};

TEST_F(LoopTest, PiecesFramesAndTimePointsAreDueByTheLastOfTheirKind) {
  Numbers arrivals, frames, payments;
  i32 pieces = 0, shown = 0, paid = 0;
  spawnInterval = 9000;
  run(play, 1, 25000, [&](i32 now) {
    if (fallingPiecesUpper >= pieces) arrivals.push_back(now);
    if (fake::picturesShown > shown && now < 100) frames.push_back(now);
    if (score > paid) payments.push_back(now);
    pieces = fallingPiecesUpper + 1;
    shown = fake::picturesShown;
    paid = score;
    if (now == 10005) fake::clockNow += 2000;  // what is late isn't made up for
  });
  EXPECT_EQ(arrivals, (Numbers{501, 9502, 18503}));
  EXPECT_EQ(frames, (Numbers{1, 27, 53, 79}));
  EXPECT_EQ(payments, (Numbers{10001, 20002}));
  EXPECT_EQ(score, 6);
}

TEST_F(LoopTest, PendingSpawnsComeAfterThePhysicsOfTheirFrameAndWhatFallsIsScannedInIt) {
  pendingSpawns = 5;  // left over from a game before
  drop('D', 4, 519, 3, 4);
  drop('U', 5, 519, 3, 4).expiry = 0;
  run(play, 27, 54, [](i32 now) {
    if (now == 27) {
      EXPECT_EQ(board() + std::to_string(scorePopups.size()), "....D2");
      pendingSpawns = 3;
    }
    if (now == 54) {
      EXPECT_EQ((Numbers{fallingPiecesUpper, fallingPieces[0].y}), (Numbers{2, 0}));
    }
  });
}

TEST_F(LoopTest, OneFreestyleSpawnInTwoThousandIsAMusicNoteWhileFewHaveBeenCollected) {
  const struct {
    void (*loop)();
    i32 draw, collected;
    bool isNote;
  } cases[] = {{play, 1, 8, true},
               {play, 1, 9, false},
               {play, 0, 0, false},
               {play, 2, 0, false},
               {playArcade, 1, 0, false}};
  for (const auto& [loop, draw, collected, isNote] : cases) {
    newGame();
    goalScore = 50;
    notesCollected = collected;
    fake::draws = {fake::drawOf(draw, 2000)};
    run(loop, 1, 510, [](i32) {});
    EXPECT_EQ(fallingPieces.back().name == "Music", isNote) << draw;
  }
}

TEST_F(LoopTest, FrogBonusStartsAbove60000AndOnceAndItsParadeRunsThreeSecondsMore) {
  score = 60000;
  run(play, 1, 400, [&](i32 now) {
    EXPECT_EQ(frogBonusOn, flagOf(now > 104));
    if (now == 100) score = 60001;
    if (now != 140) return;
    EXPECT_EQ((Numbers{frogBonusUntil, frogsUpper}), (Numbers{1000 + 105 + 60000, 0}));
    EXPECT_EQ(ticker(), "FROG BONUS!");
    frogBonusUntil = gameTick() - 2970;
  });
  EXPECT_EQ((Numbers{frogBonusUntil, frogBonusOn}), (Numbers{1140 - 2970, True}));
  EXPECT_EQ(frogsUpper, 1);  // one more frame, until 3 seconds after the bonus
}

TEST_F(LoopTest, LostScreenPausesAndTheGameGoesOnWhereItWas) {
  std::set<i32> shown;
  i32 passes = 0;
  run(play, 1, 300, [&](i32) {
    ++passes;
    fake::screenIsLost = passes >= 100 && passes < 300;
    if (passes >= 101 && passes < 300) shown.insert(fake::picturesShown);
    if (passes == 310) press("P", 0);
  });
  EXPECT_EQ(shown.size(), 1U);
  EXPECT_NEAR(static_cast<double>(tickBase), 210, 2);
  EXPECT_EQ(inPlay, False);
}

TEST_F(LoopTest, LevelsAreDecidedByTheirGoalsAndTimers) {
  const struct {
    const char* settings;
    i32 later;  // ms at which `change` happens
    const char* change;
    i32 at;
    const char* words;
  } cases[] = {
      {"goalScore=-1", 0, "", 500, "VICTORY!"},
      {"goalPieceName=Glonk goalPieceCount=1", 2000, "goalPieceCount=0", 2500, "VICTORY!"},
      {"goalPieceName=Nothing goalPieceCount=1", 0, "", 500, "VICTORY!"},
      {"goalScore=3", 0, "", 11000, "VICTORY!"},
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
    const Decision decision = playLevel([&](i32 now) {
      if (now >= later && now < later + 500) set(change);
    });
    EXPECT_EQ(decision.words, words) << settings;
    EXPECT_NEAR(decision.at, at, 1500) << settings;
    EXPECT_EQ(levelWon, flagOf(*words == 'V')) << settings;
    EXPECT_EQ(holds(heard(), "clapping"), *words == 'V') << settings;
    const auto length = static_cast<double>(decision.words.size());
    if (at < 0) continue;
    EXPECT_NEAR(decision.framesToEnd, std::ceil((1000 + 50 * (length - 1)) / 14), 1) << settings;
  }
}

// In the middle of a game a picture can't be drawn any more, sounds fail and memory runs out: every
// other step of the loop goes on.
TEST_F(LoopTest, ArcadeLoopGoesOnAfterAStepThatFailsAndLogsEachKindOnce) {
  logEnabled = True;
  openLog();
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
  const Decision decision = playLevel([](i32 now) {
    if (now != 500) return;
    ++fake::clockNow;
    throw std::bad_alloc();
  });
  EXPECT_EQ(decision.words, "VICTORY!");  // by the Diamond's popup, which climbs all the same
  EXPECT_EQ(levelWon, True);
  EXPECT_LT(decision.framesToEnd, 100);
  std::set<std::string> once;
  std::string all;
  for (const std::string& line : logged()) {
    EXPECT_TRUE(once.insert(line).second) << line;
    all += line;
  }
  for (const char* failure : {"429, frame", "7, std::bad_alloc", "_connect0", "_clapping0"}) {
    EXPECT_PRED2(holds, all, failure);
  }
}

// Two Bombs in one frame make fruit whose pictures can't be loaded: nothing of the game touches
// what has been given back.
TEST_F(LoopTest, FruitThatCantBeLoadedEndsTheGameCleanly) {
  for (void (*loop)() : {play, playArcade}) {
    newGame();
    goalScore = 90000;
    fake::onPicture = [](const std::string& name) {
      if (name == "cherry") throw RuntimeError(ErrorNumber::fileNotFound, name);
    };
    run(loop, 27, 1000, [](i32 now) {
      if (now == 27) lay("12...12/3B4..3B4/R....RRR", "B");
      drawn();
    });
    for (const std::string& line : drawn()) EXPECT_EQ(line.substr(0, 5), "load ");
    EXPECT_EQ((Numbers{score, fake::windowOpen, paused, levelWon, gameTick()}),
              (Numbers{10000, false, False, False, 1054}));
  }
}

}  // namespace glonks
