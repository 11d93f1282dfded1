#include "game/arcade.h"

#include "rules/boardscan.h"
#include "rules/levelgoals.h"
#include "shell/playbutton.h"
#include "storage/files/log.h"
#include "tests/engine/boardtest.h"

namespace glonks {

class ArcadeTest : public BoardTest {
 protected:
  ArcadeTest() {
    fake::useGenerator();
    spawnInterval = never;
    levelWon = False;
    logEnabled = True;
    openLog();
  }
  ~ArcadeTest() override { closeLog(); }

  struct Decision {
    i32 at = -1;  // ms after the start of the loop
    std::string words;
    i32 framesToEnd = 0;
  };

  // Plays on, half a second at each pass until the level is decided, and frame by frame then.
  // `during` runs at each pass with the time since the start.
  static Decision playLevel(const std::function<void(i32)>& during) {
    Decision decision;
    const i32 start = gameTick();
    minuteStart = start;
    fake::messages = [&] {
      during(gameTick() - start);
      if (levelOver == True && decision.at < 0) {
        decision = {gameTick() - start, ticker(), -fake::picturesShown};
      }
      fake::clockNow += levelOver == True ? 27 : 500;
      if (gameTick() - start > 300000) gameOver = True;
    };
    playArcade();
    decision.framesToEnd += fake::picturesShown;
    return decision;
  }

  static void resetGame() {
    fake::queueDraw(0, 5);
    initVariables();
    levelWon = False;
    fake::sounds.clear();
  }

  static std::size_t linesInLog(const std::string& part) {
    const std::string log = bytesOf("\\log.txt");
    std::size_t count = 0;
    for (std::size_t at = log.find(part); at != std::string::npos; at = log.find(part, at + 1)) {
      ++count;
    }
    return count;
  }
};

TEST_F(ArcadeTest, LevelsAreDecidedByTheirGoalsAndTimers) {
  const auto nothing = [](i32) {};
  const auto survive = [](i16 minutes, i16 seconds) {
    surviveOn = True;
    surviveMinutes = minutes;
    surviveSeconds = seconds;
  };
  const auto limit = [](i16 minutes, i16 seconds) {
    limitOn = True;
    limitMinutes = minutes;
    limitSeconds = seconds;
  };
  const struct {
    const char* name;
    std::function<void()> setUp;
    std::function<void(i32)> during;
    i32 at;
    const char* words;
    Flag won;
  } cases[] = {
      {"no goal", [] {}, nothing, 500, "VICTORY!", True},
      {"piece goal", [] { goalPieceName = "Glonk", goalPieceCount = 1; },
       [](i32 now) { goalPieceCount = now < 2000 ? 1 : 0; }, 2500, "VICTORY!", True},
      {"no piece goal", [] { goalPieceName = "Nothing", goalPieceCount = 4; }, nothing, 500,
       "VICTORY!", True},
      {"score by time points", [] { goalScore = 3; }, nothing, 11000, "VICTORY!", True},
      {"land goal", [] { landOn = True, landLeft = 1; },
       [](i32 now) { landLeft = now < 3000 ? 1 : 0; }, 3500, "VICTORY!", True},
      {"avoid goal", [] { avoidOn = True, avoidLeft = 2, goalScore = 50; },
       [](i32 now) { avoidLeft = now < 4000 ? 1 : 0, score = now < 4000 ? 0 : 50; }, 4500,
       "FAILED!", False},
      {"time limit", [&] { limit(1, 1), goalScore = 999; }, nothing, 119000, "TIME EXPIRED", False},
      {"survival", [&] { survive(1, 1); }, nothing, 119000, "VICTORY!", True},
      {"survival and an open goal", [&] { survive(1, 1), goalScore = 50; }, nothing, 500,
       "VICTORY!", True},
      {"survival, seconds below 0", [&] { survive(1, -5); }, nothing, 60500, "VICTORY!", True},
      {"limit, seconds below 0", [&] { limit(0, -5); }, nothing, 59000, "TIME EXPIRED", False},
      {"limit without minutes", [&] { limit(-1, 5), goalScore = 50; },
       [](i32 now) { score = now < 200000 ? 0 : 50; }, 200500, "VICTORY!", True},
      {"both timers", [&] { limit(2, 1), survive(1, 1); }, nothing, 179500, "TIME EXPIRED", False},
  };
  for (const auto& [name, setUp, during, at, words, won] : cases) {
    resetGame();
    setUp();
    const Decision decision = playLevel(during);
    EXPECT_EQ(decision.words, words) << name;
    EXPECT_NEAR(decision.at, at, 1500) << name;
    EXPECT_EQ(levelWon, won) << name;
    const bool clapped = heard().find("clapping") != std::string::npos;
    EXPECT_EQ(clapped, won == True) << name;
    const auto length = static_cast<double>(std::strlen(words));
    EXPECT_NEAR(decision.framesToEnd, (1000 + 50 * (length - 1)) / 14, 2) << name;
  }
}

TEST_F(ArcadeTest, DecidedLevelStaysAsItIs) {
  const struct {
    Flag won;
    std::function<void(i32)> during;
  } cases[] = {
      {False, [](i32) { avoidLeft = 0, score = tickerUpper > 0 ? 50 : 0; }},
      {True, [](i32) { score = 50, avoidLeft = levelOver == True ? 0 : 1, gameOver = levelOver; }},
      {False, [](i32) { gameOver = True; }}};  // by Escape or a full column, before any goal
  for (const auto& [won, during] : cases) {
    resetGame();
    avoidOn = True;
    avoidLeft = 1;
    goalScore = 50;
    playLevel(during);
    EXPECT_EQ(levelWon, won);
  }
  score = goalScore;
  avoidLeft = 1;
  EXPECT_EQ(goalsMet(), True);
  avoidLeft = 0;
  EXPECT_EQ(goalsMet(), False);
}

TEST_F(ArcadeTest, TitleStandsAtTheTop) {
  DirectDrawSurface7 text(1024, 768);
  text.SetFont(gameFont);
  text.SetForeColor(RGB(255, 255, 255));
  text.DrawText(315, 33, "I", False);
  const auto* lit = std::find(text.pixels(), text.pixels() + 1024 * 768, RGB(255, 255, 255));
  fake::watchedX = static_cast<i32>(lit - text.pixels()) % 1024;
  fake::watchedY = static_cast<i32>(lit - text.pixels()) / 1024;
  levelTitle = "I";
  frameSurface = nullptr;
  playLevel([](i32) {});
  EXPECT_EQ(fake::watchedPixel, RGB(255, 255, 255));
}

// In the middle of a game a picture can't be stretched any more and sounds fail: every other step
// of the loop goes on.
TEST_F(ArcadeTest, LoopGoesOnAfterAStepThatFails) {
  goalScore = 100;
  lay(".D");
  cellAt(0, 1).expiry = 0;
  drop(4, "Glonk", 519, 9);
  frameSurface = std::make_shared<DirectDrawSurface7>(70000, 1);
  for (const char* number : {"01", "02", "03"}) {
    fake::brokenSamples.insert(std::string("_connect") + number);
    fake::brokenSamples.insert(std::string("_clapping") + number);
  }
  const Decision decision = playLevel([](i32) {});
  EXPECT_EQ(decision.words, "VICTORY!");  // by the Diamond's popup, which climbs all the same
  EXPECT_EQ(levelWon, True);
  EXPECT_LT(decision.framesToEnd, 100);
  EXPECT_EQ(linesInLog("a step failed: 429, Blt"), 1U);
  EXPECT_EQ(linesInLog("a step failed: 429, The sound _clapping"), 1U);
}

// Two Bombs in one frame make fruit whose pictures can't be loaded: the game ends, and nothing of
// it touches what has been given back.
TEST_F(ArcadeTest, FruitThatCantBeLoadedEndsTheGameCleanly) {
  ownFolderOfLinks("images");
  std::filesystem::remove(folder / "images" / "cherry.bmp");
  lay("121/3B4");
  gameOver = False;
  cellAt(0, 1).expiry = 0;
  scanPieces();
  EXPECT_FALSE(fake::windowOpen || dd);  // gone at once, which needs the game to be over by then
  ownFolderOfLinks("levels");
  putBytes("\\plain", "90000\nTitle\nNext\n1\n-1,-1,9000,-1,-1,-1,-1,-1,-1,-1,-1\nGlonk,1,0,999\n");
  scrambleFile("\\plain", "\\levels\\7");
  for (const char* mode : {"Freestyle", "Arcade"}) {
    addItem(tMode, mode);
    addItem(tLevels, "Title");
    tLevels.itemData.back() = 7;
    tMode.listIndex = tLevels.listIndex = static_cast<i32>(tMode.items.size()) - 1;
    i32 shown = 0;
    fake::messages = [&] {
      fake::clockNow += 27;
      shown = fake::picturesShown;
      EXPECT_EQ(gameOver, False);
      lay("12...12/3B4..3B4/R....RRR");
      cellAt(1, 1).expiry = cellAt(1, 6).expiry = 0;
    };
    main_BtnRun_Click();
    EXPECT_EQ(score, 10000) << mode;
    EXPECT_EQ(entryAt(15).value + entryAt(17).value, 120);  // what came before the error stays
    EXPECT_EQ(fake::picturesShown, shown);
    EXPECT_FALSE(fake::windowOpen || paused == True);
    EXPECT_EQ(fake::forms.back(), "show ");
    EXPECT_EQ(levelWon, False);
  }
  const std::string log = bytesOf("\\log.txt");
  const std::size_t first = log.find("error occured in fruitize function.   ");
  const std::size_t second = log.find("53, The file \"\\images\\cherry.bmp\"");
  EXPECT_TRUE(first < second && second < log.find("destroy - shutting down directx")) << log;
  EXPECT_EQ(linesInLog("error occured"), 3U);
  EXPECT_EQ(linesInLog("destroy - shutting down directx"), 5U);
}

}  // namespace glonks
