#include "game/freestyle.h"

#include "game/loading/levels.h"
#include "tests/engine/enginetest.h"

namespace glonks {

// Runs of the loop, with 1 ms for each pass; what happens when is told by game tick.
class FreestyleTest : public EngineTest {
 protected:
  FreestyleTest() { setUpGame(); }

  void setUpGame() {
    loadPieces();
    loadLevel("\\levels\\2193", False);
    fake::useGenerator();
    start_ = gameTick();
  }

  // Plays until `end` ms after the loop's start. `each` runs at the end of each pass.
  void playFor(i32 end, const std::function<void(i32)>& each) {
    fake::messages = [&] {
      ++fake::clockNow;
      each(gameTick() - start_);
      if (gameTick() >= start_ + end) gameOver = True;
    };
    play();
  }

  i32 start_ = 0;
};

TEST_F(FreestyleTest, PiecesFramesAndTimePointsAreDueByTheLastOfTheirKind) {
  Numbers arrivals, frames, payments;
  i32 pieces = 0, shown = fake::picturesShown, paid = 0;
  spawnInterval = 9000;
  playFor(25000, [&](i32 now) {
    if (fallingPiecesUpper >= pieces) arrivals.push_back(now - 1);
    if (fake::picturesShown > shown && now < 100) frames.push_back(now - 1);
    if (score > paid) payments.push_back(now - 1);
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

TEST_F(FreestyleTest, FrameTakesInPendingSpawnsShowsTheBoardAndLaysTheNextBackground) {
  plateSurface->BltColorFill({}, RGB(1, 2, 3));
  frameSurface = pointerSurface = nullptr;
  put(0, 0).imageIndex = 18;
  pendingSpawns = 5;  // left over from a game before
  fake::watchedX = 125;
  fake::watchedY = 645;
  playFor(85, [](i32 now) {
    if (now == 40) pendingSpawns = 3;
  });
  ASSERT_EQ(fallingPiecesUpper, 2);
  EXPECT_EQ(fallingPieces[0].y, 2);  // entered after the physics of the frame at 53
  EXPECT_EQ(fake::watchedPixel, entryAt(18).surface->pixel(45, 45));
  EXPECT_EQ(backBuffer->pixel(125, 645), static_cast<u32>(RGB(1, 2, 3)));  // no piece yet
}

TEST_F(FreestyleTest, OneSpawnInTwoThousandIsAMusicNoteWhileFewHaveBeenCollected) {
  Numbers notes;
  const std::pair<i32, i32> cases[] = {{1, 8}, {1, 9}, {0, 0}, {2, 0}};
  for (const auto& [draw, collected] : cases) {
    notesCollected = collected;
    fake::queueDraw(draw, 2000);
    start_ = gameTick();
    playFor(510, [](i32) {});
    notes.push_back(fallingPieces.back().name == "Music" ? 1 : 0);
  }
  EXPECT_EQ(notes, (Numbers{1, 0, 0, 0}));
}

TEST_F(FreestyleTest, FrogBonusStartsAbove60000AndOnceWithItsParadeBehindTheFrame) {
  score = 60000;
  i32 until = 0;
  frameSurface = std::make_shared<DirectDrawSurface7>(1024, 768);  // covers all
  playFor(400, [&](i32 now) {
    if (now == 100) {
      score = 60001;
      fake::draws = {0.1F, 0, 0, 0, 0.9F};  // a frog at 200
    }
    if (now != 140) return;
    for (i32 x = 0; x < 1024; ++x) EXPECT_EQ(backBuffer->pixel(x, 50), 0U) << x;
    until = std::exchange(frogBonusUntil, gameTick() - 2970);
  });
  EXPECT_EQ(until - start_, 60000 + 105);
  EXPECT_EQ(frogBonusUntil - start_, 140 - 2970);
  EXPECT_EQ(frogsUpper, 1);  // one more frame, until 3 seconds after the bonus
}

TEST_F(FreestyleTest, LostScreenPausesAndTheGameGoesOnWhereItWas) {
  const u32 clock = fake::clockNow;
  Numbers shown;
  playFor(300, [&](i32) {
    const u32 passed = fake::clockNow - clock;
    fake::screenIsLost = passed >= 100 && passed < 300;
    if (passed == 150 || passed == 299) shown.push_back(fake::picturesShown);
    if (passed > 300 && paused == True) fake::pressKeys({25});
  });
  EXPECT_EQ(shown.front(), shown.back());
  EXPECT_NEAR(static_cast<double>(tickBase), 200, 2);
}

}  // namespace glonks
