#include <tuple>

#include "game/model/model.h"
#include "game/modes.h"
#include "shell/fmain.h"
#include "shell/menucontrols.h"
#include "shell/menulayout.h"
#include "shell/newgamepage.h"
#include "shell/playbutton.h"
#include "shell/saving.h"
#include "shell/scorespage.h"
#include "shell/storepage.h"
#include "storage/playerfiles.h"
#include "storage/progress.h"
#include "storage/scores.h"
#include "storage/store.h"
#include "tests/fakes/toolkit.h"
#include "tests/tempfolder.h"

namespace glonks {
namespace {

// What a player owns, on disk. Plain lines end with "\n" here.
class PlayerData : public TempFolder {
 protected:
  PlayerData() {
    makeKeys(keySeed, keyDrawArgument, keyScale);
    fake::resetToolkit();
    layOutMenu();
    popModes();
    takeNews();
  }
  static std::string plainOf(const PlayersFile& file) { return plainOf(pathOf(file)); }
  static std::string plainOf(const std::string& path) {
    unscrambleFile(path, "\\plain");
    std::string plain = bytesOf("\\plain");
    std::erase(plain, '\r');
    return plain;
  }
  static void load(const PlayersFile& file) {
    if (file.name == scoresFile.name) loadScores();
    if (file.name == storeFile.name) loadStore();
    if (file.name == levelsFile.name) readOpenLevels();
  }
};

const std::string table =
    "20000,A\n18000,B\n16000,C\n14000,D\n12000,E\n10000,F\n8000,G\n6000,H\n4000,I\n2000,J\n";

TEST_F(PlayerData, ScoresEnterTheirPlaceWithAStorableName) {
  const std::tuple<i32, const char*, std::size_t, std::string> entries[] = {
      // score, typed, where in the table, line there
      {2000, "as the last", table.size() - 7, "2000,as the last\n"},
      {20000, "as the first", 0, "20000,as the first\n"},
      {15000, "a,\"b\"\tc\x7f", 24, "15000,a;'b' c\n"}};
  for (const auto& [points, typed, at, line] : entries) {
    fake::resetToolkit();
    putScrambled(pathOf(scoresFile), table);
    loadScores();
    fake::typed = typed;
    score = points;
    fake::asked = [] { loadScores(); };  // the entry is there before its name
    enterHighScore();
    std::string expected = table;
    expected.insert(at, line).resize(table.size() - 7 + line.size());
    EXPECT_EQ(plainOf(scoresFile), expected);
  }
  EXPECT_EQ(placeOfScore(3999), highScoreCount);
  EXPECT_EQ(scores_freestyle.items[3], "04.    15000   \ta;'b' c");
}

// By the leading numeric part, halves to even, to the nearest allowed value.
TEST_F(PlayerData, StoreHasThirteenLinesInItsOwnOrder) {
  putScrambled(pathOf(storeFile),
               "1e99\n-1\n 2.5,7\n3.5x\nx3\n15\n\t6 6\n0.4\nyes\n\n8\n \"Cells,\" ,\n101\n");
  loadStore();
  EXPECT_EQ(itemStock, (std::array<i16, itemKinds>{0, 2, 6, 4, 0, 15}));
  EXPECT_EQ(HScroll2.value, 100);
  saveStore();
  EXPECT_EQ(plainOf(storeFile), "32767\n0\n2\n4\n0\n15\n6\n1\n0\n0\n8\nCells;\n100\n");
}

TEST_F(PlayerData, PurchaseTakesThePriceOnceTheAnswerIsYes) {
  const i16 price = storeItems[bombItem].price;
  for (const auto& [spare, yes] : {std::pair{-1, True}, {0, False}, {0, True}}) {
    fake::resetToolkit();
    fake::yes = yes;
    const bool sold = spare == 0 && yes == True;
    itemStock[bombItem] = 3;
    bank = static_cast<i16>(price + spare);
    saveStore();
    mStore_Click();
    purchase_Click(bombItem);
    EXPECT_EQ(tBank.caption, std::to_string(sold ? 0 : price + spare));
    EXPECT_EQ(tpurchase[bombItem].caption, sold ? "4" : "3");
    loadStore();
    EXPECT_EQ(bank, sold ? 0 : price + spare);
    EXPECT_PRED2(holds, fake::boxes.at(0), spare == 0 ? "a Bomb for 4 credits?" : "Insufficient");
  }
}

TEST_F(PlayerData, AwardedLevelIsAddedOnceToFileAndList) {
  putScrambled(pathOf(levelsFile), "One, \"two\"\n 17 \n");
  setText(tMode, "Arcade");
  rewardLevelName = "Three";
  rewardLevelFile = 3;
  const std::string both = "One, \"two\"\n 17 \nThree\n 3 \n";
  fake::asked = [&] { EXPECT_EQ(plainOf(levelsFile), both) << "before the player is told"; };
  for (i32 win = 0; win < 2; ++win) awardLevel();
  EXPECT_EQ(fake::boxes.size(), 1U);
  EXPECT_EQ(plainOf(levelsFile), both);
  EXPECT_EQ(tLevels.items, (std::vector<std::string>{"One, \"two\"", "Three"}));
  EXPECT_EQ(tLevels.itemData, (std::vector<i32>{17, 3}));
}

const std::string withoutD =
    "20000,A\n18000,B\n16000,C\n12000,E\n10000,F\n10000,Sleepy "
    "Moss\n8000,G\n6000,H\n4000,I\n2000,J\n";
const std::string goods = "7\n2\n3\n4\n5\n6\n0\n1\n0\n8\nEmbers\n40\n";  // after the bank

// A player's file, its plain lines as they are found ("missing": there is none, "first": what the
// game begins with), a scrambled line of it, counted from 0, and what that is exchanged for
// (nullptr: nothing; "cut": the file ends in it), the plain lines left, and what the message says.
const std::tuple<const PlayersFile&, std::string, std::size_t, const char*, std::string,
                 const char*>
    damages[] = {
        {scoresFile, std::string(600'000, '\n'), 0, nullptr, "first", "None of its 10 scores"},
        {scoresFile, "first", 0, "x", "first", "9 of its 10 scores"},
        {scoresFile, table, 3, "x", withoutD, "9 of its 10 scores"},
        {scoresFile, table, 3, "1.1.1.1.1.1.1.1.1.1.1.1.1.1.1.1.1.", withoutD,
         "9 of its 10 scores"},
        {scoresFile, table + "1000,K\n800,L\n", 11, "x", table, "10 of its 10 scores"},
        {storeFile, "77\n7\n2", 0, nullptr, "77\n7\n2\n1\n0\n0\n1\n0\n0\n0\n0\nCells\n70\n",
         "3 of its 13 values"},
        {storeFile, "77\n" + goods, 0, "7a.1.", "5\n" + goods, "12 of its 13 values"},
        {levelsFile, "missing", 0, nullptr, "First Steps\n3101\n", "is missing."},
        {levelsFile, "One\n1\nTwo Rocks\n2\nThree\n3\n", 1, "x", "Two Rocks\n2\nThree\n3\n",
         "2 of its 3 levels"},
        {levelsFile, "One\n1\nTwo\n", 0, nullptr, "One\n1\n", "1 of its 2 levels"},
        {levelsFile, "One\n1\nTwo\n3102\n", 3, "cut", "One\n1\n", "1 of its 2 levels"},
};

TEST_F(PlayerData, OfADamagedFileWhatCanBeReadIsKeptAndTheRestPutAside) {
  for (const auto& [file, plain, line, scrambled, left, told] : damages) {
    fake::resetToolkit();
    const std::string path = pathOf(file);
    const std::string aside = path + ".damaged";
    const std::string first = plainOf(firstContentsOf(file));
    putScrambled(path, plain == "first" ? first : plain);
    std::string before = bytesOf(path);
    if (scrambled != nullptr) {
      std::size_t at = 0;
      for (std::size_t i = 0; i < line; ++i) at = before.find("\r\n", at) + 2;
      const std::size_t end = before.find("\r\n", at);
      if (scrambled == std::string("cut")) {
        before.resize(before.rfind('.', end - 2) + 1);
      } else {
        before.replace(at, end - at, scrambled);
      }
      putBytes(path, before);
    }
    if (plain == "missing") std::filesystem::remove(nativePath(path));
    load(file);
    tellOfNewFiles();
    load(file);
    tellOfNewFiles();
    ASSERT_EQ(fake::boxes.size(), 1U) << path << told;
    EXPECT_PRED2(holds, fake::boxes[0], told);
    EXPECT_EQ(plainOf(file), left == "first" ? first : left) << fake::boxes[0];
    EXPECT_EQ(bytesOf(aside), plain == "missing" ? "" : before) << fake::boxes[0];
    std::filesystem::remove(nativePath(aside));
  }
  for (const char* kept : {"\\init\\6702.damaged", "\\init\\6702.damaged2"}) {
    putBytes("\\init\\6702", kept);
    loadStore();
    EXPECT_EQ(bytesOf(kept), kept);
  }
}

// What hinders opening or reading now may be gone the next time: a loop of links, and a file whose
// first byte gives an input/output error.
TEST_F(PlayerData, AFileThatCantBeReadNowIsLeftAlone) {
  for (const PlayersFile& file : {scoresFile, storeFile, levelsFile}) {
    const auto place = nativePath(pathOf(file));
    for (const auto& [target, error] :
         {std::pair{place, "can't be opened"}, {"/proc/self/mem", "can't be read"}}) {
      setText(tMode, "Arcade");
      std::filesystem::remove(place);
      if (!makeLink(target, place)) GTEST_SKIP() << "no links";
      EXPECT_PRED2(holds, errorOf([&] { load(file); }), pathOf(file) + "\" " + error);
      setText(tMode, "Arcade");
      EXPECT_EQ(tLevels.items.at(0), "First Steps") << "those known from before";
      EXPECT_TRUE(is_symlink(place) && !exists(pathOf(file) + ".damaged"));
    }
  }
}

// A disk that takes nothing: folders stand where the new files would be written.
TEST_F(PlayerData, WhatCantBeStoredStaysInMemoryAndLaterSavesTryAgain) {
  const auto block = [](bool on) {
    for (const PlayersFile& file : {scoresFile, storeFile, levelsFile}) {
      const auto beside = nativePath(pathOf(file) + ".new");
      on ? std::filesystem::create_directory(beside) : std::filesystem::remove(beside);
    }
  };
  loadScores();
  setText(tMode, "Arcade");
  block(true);
  fake::typed = "Newcomer";
  score = 130000;
  enterHighScore();
  rewardLevelName = "Reward";
  rewardLevelFile = 77;
  awardLevel();
  bank = 77;
  const std::size_t asked = fake::boxes.size();
  saveStore();
  EXPECT_EQ(fake::boxes.size(), asked + 1) << "not again for what has just been given up";
  saveStore();
  EXPECT_EQ(fake::boxes.size(), asked + 4) << "later for all";
  setText(tMode, "Arcade");
  EXPECT_EQ(tLevels.items.back(), "Reward");
  fake::yes = True;
  fake::asked = [&] { block(false); };
  purchase_Click(slammerItem);
  EXPECT_EQ(plainOf(storeFile).substr(0, 3), "75\n");
  EXPECT_EQ(plainOf(scoresFile).substr(0, 16), "130000,Newcomer\n");
  EXPECT_EQ(plainOf(levelsFile), "First Steps\n3101\nReward\n 77 \n");

  // Each file by itself, at closing and at the end of a run that fails.
  fake::resetToolkit();
  std::filesystem::create_directory(nativePath("\\init\\6095.new"));
  bank = 78;
  fMain_Form_Unload();
  EXPECT_EQ(plainOf(storeFile).substr(0, 3), "78\n");
  bank = 79;
  owe(storeFile);
  saveSilently();
  EXPECT_EQ(plainOf(storeFile).substr(0, 3), "79\n");
  block(false);
  highScores[0].points = 135000;
  owe(scoresFile);
  mExit_Click();
  EXPECT_EQ(plainOf(scoresFile).substr(0, 16), "135000,Newcomer\n");
}

TEST_F(PlayerData, AWonLevelIsStoredIfItsGameCantGoOn) {
  setText(tMode, "Arcade");
  rewardLevelName = "Reward";
  rewardLevelFile = 77;
  gameMode = modeTitled("Arcade");
  inPlay = levelWon = True;
  for (i32 time = 0; time < 2; ++time) storeAtOnce();
  EXPECT_EQ(plainOf(levelsFile), "First Steps\n3101\nReward\n 77 \n");
}

}  // namespace
}  // namespace glonks
