#include "game/freestyle.h"

#include <algorithm>

#include "game/gamereset.h"
#include "game/levels.h"
#include "game/pieces.h"
#include "game/playframe.h"
#include "game/resources.h"
#include "present/services/bass.h"
#include "shell/menucontrols.h"
#include "tests/engine/enginetest.h"

namespace glonks {
namespace {

// Runs of the loop, with 1 ms for each pass; what happens when is told by game tick.
class FreestyleTest : public EngineTest {
 protected:
  FreestyleTest() {
    makeRealKeys();
    loadPieces();
    spawnInterval = 300;
    modeName = "Freestyle";
    clearItems(songs);
    addItem(songs, "Band - Song");
    musicStream = BASS_StreamCreateFile(0, "\\music\\Band - Song", 0, 0, 0);
    songTitle = "Band - Song";
    loadLevel("\\levels\\2193", False);
    fake::useGenerator();
    start_ = gameTick();
  }

  // Plays until `end` ms after the loop's start. `each` runs at the end of each pass.
  void playFor(i32 end, const std::function<void(i32)>& each = nullptr) {
    fake::messages = [this, end, each] {
      passTime(1);
      const i32 now = gameTick() - start_;
      if (each) each(now);
      if (now >= end) gameOver = True;
    };
    play();
  }

  i32 start_ = 0;
};

TEST_F(FreestyleTest, FirstPieceComesAfterHalfASecondAndOthersAtTheInterval) {
  std::vector<i32> arrivals;
  i16 seen = -1;
  spawnInterval = 400;
  playFor(1500, [&](i32 now) {
    if (fallingPiecesUpper > seen) arrivals.push_back(now);
    seen = fallingPiecesUpper;
  });
  // Due strictly after 500 ms; the next is counted from the spawn.
  EXPECT_EQ(arrivals, (std::vector<i32>{502, 903, 1304}));
}

TEST_F(FreestyleTest, FramesComeEach25MillisecondsFromTheEndOfTheFlip) {
  std::vector<i32> frames;
  i32 seen = fake::picturesShown;
  playFor(120, [&](i32 now) {
    if (fake::picturesShown > seen) frames.push_back(now - 1);
    seen = fake::picturesShown;
  });
  EXPECT_EQ(frames, (std::vector<i32>{1, 27, 53, 79, 105}));
}

TEST_F(FreestyleTest, TimePointsAreCountedFromWhenTheyWerePaid) {
  std::vector<i32> payments;
  i32 last = 0;
  spawnInterval = 1000000;
  playFor(25000, [&](i32 now) {
    if (score != last) payments.push_back(now - 1);
    last = score;
    if (now == 10005) passTime(2000);  // a late payment isn't made up for
  });
  EXPECT_EQ(payments, (std::vector<i32>{10001, 20002}));
  EXPECT_EQ(score, 6);
}

TEST_F(FreestyleTest, PendingSpawnsEnterInTheSameFrame) {
  i32 largest = -1;
  playFor(100, [&](i32 now) {
    if (now == 40) pendingSpawns = 3;
    if (now == 60) {
      largest = fallingPiecesUpper;
      EXPECT_EQ(fallingPieces[0].y, 0);  // entered after the physics step
    }
  });
  EXPECT_EQ(largest, 2);
  EXPECT_EQ(pendingSpawns, 0);
}

TEST_F(FreestyleTest, OneSpawnInTwoThousandIsAMusicNoteWhileFewHaveBeenCollected) {
  struct Case {
    i32 draw, collected;
    bool note;
  };
  for (const auto& [draw, collected, note] :
       {Case{1, 8, true}, {1, 9, false}, {0, 0, false}, {2, 0, false}}) {
    fallingPieces.clear();
    fallingPiecesUpper = -1;
    notesCollected = collected;
    fake::seedings = 0;
    fake::queueDraw(draw, 2000);
    if (!note) fake::queueDraw(500, 1000);
    start_ = gameTick();
    playFor(510);
    ASSERT_EQ(fallingPiecesUpper, 0);
    EXPECT_EQ(fallingPieces[0].name == "Music", note) << draw << " " << collected;
    EXPECT_EQ(fake::seedings, note ? 0 : 1);
  }
}

TEST_F(FreestyleTest, FrogBonusStartsAbove60000AndOnce) {
  score = 60000;
  playFor(200, [&](i32 now) {
    if (now == 100) {
      EXPECT_EQ(frogBonusOn, False);
      score = 60001;
    }
    if (now == 140) {
      EXPECT_EQ(frogBonusOn, True);
      EXPECT_EQ(frogBonusUntil - start_, 60000 + 105);
      frogBonusUntil = 1;
    }
  });
  EXPECT_EQ(frogBonusUntil, 1);
}

TEST_F(FreestyleTest, LostScreenPausesAndTheGameGoesOnWhereItWas) {
  i32 passes = 0;
  fake::messages = [&] {
    passTime(1);
    ++passes;
    if (passes == 100) fake::screenIsLost = true;
    if (passes == 300) fake::screenIsLost = false;
    if (passes > 300 && paused == True) fake::pressKeys({25});
    if (passes == 400) gameOver = True;
  };
  play();
  EXPECT_EQ(passes, 400);
  EXPECT_NEAR(static_cast<double>(tickBase), 200, 2);
  EXPECT_EQ(fallingPiecesUpper, -1);  // the pause has not brought the first spawn nearer
}

TEST_F(FreestyleTest, EscapeEndsTheLoopAtItsNextPass) {
  i32 passes = 0;
  fake::messages = [&] {
    passTime(1);
    if (++passes == 200) fake::pressKeys({1});
  };
  play();
  EXPECT_EQ(passes, 200);
  EXPECT_TRUE(fake::sounds.empty());
}

TEST_F(FreestyleTest, FrameShowsTheNewBoardAndLaysTheNextBackground) {
  plateSurface = std::make_shared<DirectDrawSurface7>(500, 350);
  plateSurface->BltColorFill({}, RGB(1, 2, 3));
  frameSurface = nullptr;
  pointerSurface = nullptr;
  put(0, 0).imageIndex = 18;
  backBuffer->BltColorFill({}, RGB(50, 0, 0));
  playFor(3);
  EXPECT_EQ(backBuffer->pixel(300, 300), static_cast<u32>(RGB(1, 2, 3)));
  EXPECT_EQ(backBuffer->pixel(125, 645), static_cast<u32>(RGB(1, 2, 3)));  // no piece yet
  EXPECT_EQ(backBuffer->pixel(20, 20), 0U);
}

// A whole game without a player, from fixed seeds: it is lost by itself, and always at the same
// point with the same board.
TEST_F(FreestyleTest, UnattendedGameIsLostTheSameWayEachTime) {
  struct Outcome {
    i32 ticks, score;
    std::string board;
    std::size_t sounds;
  };
  std::vector<Outcome> outcomes;
  for (i32 run = 0; run < 2; ++run) {
    fake::resetClock();
    fake::resetSound();
    fake::useGenerator();
    clearItems(tMode);
    addItem(tMode, "Freestyle");
    setListIndex(tMode, 0);
    initVariables();
    loadPieces();
    loadLevel("\\levels\\2193", False);
    musicStream = BASS_StreamCreateFile(0, "\\music\\Band - Song", 0, 0, 0);
    fake::messages = [] { passTime(27); };
    play();
    outcomes.push_back({gameTick(), score, field(), fake::sounds.size()});
    EXPECT_EQ(std::count(fake::sounds.begin(), fake::sounds.end(), "_gameover"), 1);
  }
  EXPECT_EQ(outcomes[0].ticks, outcomes[1].ticks);
  EXPECT_EQ(outcomes[0].score, outcomes[1].score);
  EXPECT_EQ(outcomes[0].board, outcomes[1].board);
  EXPECT_EQ(outcomes[0].sounds, outcomes[1].sounds);
  // The last piece found its column full.
  i16 full = 0;
  for (i16 column = 0; column < columnCount; ++column) {
    full = static_cast<i16>(full + (cellAt(rowCount - 1, column).occupied == True ? 1 : 0));
  }
  EXPECT_GE(full, 1);
  EXPECT_EQ(outcomes[0].score, outcomes[0].ticks / 10000 * timePoints);
  clearItems(tMode);
}

}  // namespace
}  // namespace glonks
