#include <sys/stat.h>

#include <algorithm>
#include <tuple>

#include "base/text.h"
#include "game/model/model.h"
#include "shell/fmain.h"
#include "shell/menucontrols.h"
#include "shell/menulayout.h"
#include "shell/newgamepage.h"
#include "shell/pages.h"
#include "shell/saving.h"
#include "shell/scorespage.h"
#include "shell/storepage.h"
#include "storage/files/scrambledfiles.h"
#include "storage/playerfiles.h"
#include "storage/progress.h"
#include "storage/scores.h"
#include "storage/store.h"
#include "tests/fakes/toolkit.h"
#include "tests/tempfolder.h"

namespace glonks {
namespace {

using Texts = std::vector<std::string>;

// What a player owns, on disk.
class PlayerData : public TempFolder {
 protected:
  PlayerData() {
    makeKeys(keySeed, keyDrawArgument, keyScale);
    fake::resetToolkit();
    layOutMenu();
  }
  static void putPlain(const PlayersFile& file, const std::string& plain) {
    putBytes("\\plain", plain);
    scrambleFile("\\plain", pathOf(file));
  }
  static std::string plainOf(const PlayersFile& file) {
    unscrambleFile(pathOf(file), "\\plain");
    return bytesOf("\\plain");
  }
  static void load(const PlayersFile& file) {
    if (file.name == scoresFile.name) loadScores();
    if (file.name == storeFile.name) loadStore();
    if (file.name == levelsFile.name) readOpenLevels();
  }
  // The table as "points,name" for each entry, points falling by 100 from 1000.
  static std::string hundreds() {
    std::string plain;
    for (i32 points = 1000; points >= 100; points -= 100) {
      plain += plainNumber(points) + ",P" + plainNumber(points) + "\r\n";
    }
    return plain;
  }
};

TEST_F(PlayerData, ScoresEnterTheirPlaceWithAStorableName) {
  const std::tuple<i32, const char*, i32, const char*> table[] = {
      // score, typed, place, stored
      {99, "low", 0, ""},
      {100, "equal to the last", 10, "equal to the last"},
      {1000, "equal to the first", 1, "equal to the first"},
      {750, "a,\"b\"\tc\x7f", 4, "a;'b' c"},
      {-5, "", 0, ""},
      {2000000000, "", 1, ""},
  };
  for (const auto& [points, typed, place, stored] : table) {
    fake::resetToolkit();
    putPlain(scoresFile, hundreds());
    loadScores();
    const std::string before = bytesOf("\\init\\6095");
    showPage(0);
    fake::typed = typed;
    score = points;
    enterHighScore();
    const std::string prompt = "Congratulations!  " + plainNumber(points) +
                               " is a new high score!  Please enter your name.";
    EXPECT_EQ(fake::boxes, place > 0 ? Texts{prompt} : Texts{}) << points;
    EXPECT_EQ(frame[1].visible, flagOf(place > 0)) << points;
    if (place == 0) {
      EXPECT_EQ(bytesOf("\\init\\6095"), before) << points;
      continue;
    }
    const std::string number = (place == 10 ? "" : "0") + plainNumber(place);
    const auto row = static_cast<std::size_t>(place) - 1;
    EXPECT_EQ(scores_freestyle.items.at(row),
              number + ".    " + plainNumber(points) + "   \t" + stored);
    EXPECT_PRED2(holds, plainOf(scoresFile), plainNumber(points) + "," + stored) << points;
    EXPECT_EQ(highScores[9].playerName, place == 10 ? stored : "P200") << points;
    EXPECT_EQ(highScores[8].playerName, place == 10 ? "P200" : "P300") << points;
    EXPECT_EQ(highScores[0].playerName, place == 1 ? stored : "P1000") << points;
  }
  score = 0;  // enters a table that holds nothing better
  putPlain(scoresFile, "0,\r\n0,\r\n0,\r\n0,\r\n0,\r\n0,\r\n0,\r\n0,\r\n0,\r\n0,\r\n");
  loadScores();
  enterHighScore();
  EXPECT_EQ(fake::boxes.size(), 2U);
}

TEST_F(PlayerData, StoreHasThirteenLinesInItsOwnOrder) {
  const std::string plain =
      "5\r\n10\r\n11\r\n13\r\n14\r\n15\r\n12\r\n0\r\n2\r\n0\r\n8\r\nEmbers\r\n40\r\n";
  putPlain(storeFile, plain);
  loadStore();
  EXPECT_EQ(bank, 5);
  EXPECT_EQ(itemStock, (std::array<i16, itemKinds>{10, 11, 12, 13, 14, 15}));
  EXPECT_TRUE(storeFlagA == False && storeFlagB == True && storeFlagC == False);
  EXPECT_TRUE(notesCollected == 8 && themeName == "Embers" && HScroll2.value == 40);
  saveStore();
  std::string written = plain;
  written[written.find("\r\n2\r\n") + 2] = '1';
  EXPECT_EQ(plainOf(storeFile), written);
  // By the leading numeric part, halves to even, to the nearest allowed value.
  putPlain(storeFile, "1e99\n-1\n 2.5,7\n3.5x\nx3\n\n\t6 6\n0.4\nyes\n\n-4\n \"Cells,\" ,\n101\n");
  loadStore();
  EXPECT_EQ(bank, 32767);
  EXPECT_EQ(itemStock, (std::array<i16, itemKinds>{0, 2, 6, 4, 0, 0}));
  EXPECT_TRUE(storeFlagA == True && storeFlagB == False);
  EXPECT_TRUE(notesCollected == 0 && themeName == "Cells;" && musicVolume == 100);
  EXPECT_TRUE(fake::boxes.empty() && !exists("\\init\\6702.damaged"));
}

TEST_F(PlayerData, PurchaseTakesThePriceOnceTheAnswerIsYes) {
  const i16 prices[] = {2, 4, 7, 10};
  const char* words[] = {"a Slammer", "a Bomb", "a Detonator", "a Bowling Ball"};
  for (i16 slot = 0; slot < 6; ++slot) {
    for (i16 spare = -1; spare <= 0; ++spare) {
      for (const Flag yes : {False, True}) {
        fake::resetToolkit();
        fake::yes = yes;
        const bool sold = slot < 4 && spare == 0 && yes == True;
        const i16 price = slot < 4 ? prices[slot] : 40;
        itemStock.fill(3);
        bank = static_cast<i16>(price + spare);
        saveStore();
        const std::string before = plainOf(storeFile);
        mStore_Click();
        purchase_Click(slot);
        const auto i = static_cast<std::size_t>(slot);
        EXPECT_EQ(bank, sold ? 0 : price + spare);
        EXPECT_EQ(tBank.caption, plainNumber(bank));
        EXPECT_EQ(tpurchase[i].caption, sold ? "4" : "3");
        EXPECT_EQ(plainOf(storeFile) != before, sold);
        if (slot > 3) continue;
        const std::string question = std::string("Do you want to purchase ") + words[slot] +
                                     " for " + plainNumber(price) + " credits?";
        EXPECT_EQ(fake::boxes, Texts{spare == 0 ? question
                                                : "Insufficient credits to make this transaction.  "
                                                  "Sorry!"});
      }
    }
  }
}

TEST_F(PlayerData, AwardedLevelIsAddedOnceToFileAndList) {
  popModes();
  putPlain(levelsFile, "One, \"two\"\r\n 17 \r\n");
  setText(tMode, "Arcade");
  rewardLevelName = "Three";
  rewardLevelFile = 3;
  for (i32 win = 0; win < 2; ++win) awardLevel();
  EXPECT_EQ(fake::boxes,
            Texts{"Congratulations!  You have been awarded a new level for Arcade mode!"});
  EXPECT_EQ(plainOf(levelsFile), "One, \"two\"\r\n 17 \r\nThree\r\n 3 \r\n");
  EXPECT_EQ(tLevels.items, (Texts{"One, \"two\"", "Three"}));
  EXPECT_EQ(tLevels.itemData, (std::vector<i32>{17, 3}));
}

// A player's file as it is found, what it is replaced by, and what the message says about it.
struct Damage {
  const PlayersFile& file;
  std::string plain;      // "missing": there is none
  std::size_t line;       // a scrambled line that is exchanged, counted from 0
  const char* scrambled;  // by this; nullptr: none is
  std::string left;       // plain lines
  const char* told;
};

const std::string table = "1000,A\n900,B\n800,C\n700,D\n600,E\n500,F\n400,G\n300,H\n200,I\n100,J\n";
const std::string withoutD =
    "1000,A\n900,B\n800,C\n600,E\n500,F\n500,Sleepy Moss\n400,G\n300,H\n200,I\n100,J\n";
const std::string beginners =
    "25000,Quillon the Patient\n21500,Marzipan\n18000,Dot and Dash\n15000,Ferncurl\n12000,Uncle "
    "Bobbin\n9500,Tilda Teaspoon\n7000,Captain Crumb\n4500,Wobble\n2000,Little Pickle\n500,Sleepy "
    "Moss\n";
const std::string goods = "7\n2\n3\n4\n5\n6\n0\n1\n0\n8\nEmbers\n40\n";  // after the bank
const std::string newStore = "5\n1\n1\n1\n1\n1\n1\n0\n0\n0\n0\nCells\n70\n";

const Damage damages[] = {
    {scoresFile, "missing", 0, nullptr, beginners, "is missing."},
    {scoresFile, "", 0, nullptr, beginners, "None of its 10 scores"},
    {scoresFile, std::string(600'000, '\n'), 0, nullptr, beginners, "None of its 10 scores"},
    {scoresFile, table, 3, "x", withoutD, "9 of its 10 scores"},
    {scoresFile, table, 3, "256.", withoutD, "9 of its 10 scores"},
    {scoresFile, table, 3, "1.1.1.1.1.1.1.1.1.1.1.1.1.1.1.1.1.", withoutD, "9 of its 10 scores"},
    {scoresFile, "1000,A\n900,B\n800,C\n700 D\n" + table.substr(25), 0, nullptr, withoutD, "9 of"},
    {storeFile, "missing", 0, nullptr, newStore, "is missing."},
    {storeFile, "77\n7\n2", 0, nullptr, "77\n7\n2" + newStore.substr(5), "3 of its 13 values"},
    {storeFile, "77\n" + goods, 0, "7a.1.", "5\n" + goods, "12 of its 13 values"},
    {storeFile, "77\n" + goods, 0, "", "5\n" + goods, "12 of its 13 values"},
    {levelsFile, "missing", 0, nullptr, "First Steps\n3101\n", "is missing."},
    {levelsFile, "One\n1\nTwo\n2\nThree Rocks\n3\n", 1, "x", "Two\n2\nThree Rocks\n3\n",
     "2 of its 3 levels"},
    {levelsFile, "One\n1\nTwo\n2\nThree Rocks\n3\n", 2, "x", "One\n1\nThree Rocks\n3\n",
     "2 of its 3 levels"},
    {levelsFile, "One\n1\nTwo\n", 0, nullptr, "One\n1\n", "1 of its 2 levels"},
};

TEST_F(PlayerData, OfADamagedFileWhatCanBeReadIsKeptAndTheRestPutAside) {
  for (const auto& [file, plain, line, scrambled, left, told] : damages) {
    fake::resetToolkit();
    const std::string path = pathOf(file);
    const std::string aside = path + ".damaged";
    putPlain(file, plain);
    std::string before = bytesOf(path);
    if (scrambled != nullptr) {
      std::size_t at = 0;
      for (std::size_t i = 0; i < line; ++i) at = before.find("\r\n", at) + 2;
      before.replace(at, before.find("\r\n", at) - at, scrambled);
      putBytes(path, before);
    }
    if (plain == "missing") std::filesystem::remove(nativePath(path));
    for (i32 start = 0; start < 2; ++start) {
      load(file);
      tellOfNewFiles();
    }
    std::string after = plainOf(file);
    after.erase(std::remove(after.begin(), after.end(), '\r'), after.end());
    EXPECT_EQ(after, left) << path << plain.substr(0, 100) << told;
    ASSERT_EQ(fake::boxes.size(), 1U) << path << plain.substr(0, 100) << told;
    EXPECT_PRED2(holds, fake::boxes[0], path);
    EXPECT_PRED2(holds, fake::boxes[0], told);
    EXPECT_EQ(exists(aside), plain != "missing");
    EXPECT_EQ(bytesOf(aside), exists(aside) ? before : "");
    std::filesystem::remove(nativePath(aside));
  }
  for (const char* kept : {"\\init\\6702.damaged", "\\init\\6702.damaged2"}) {
    putBytes("\\init\\6702", kept);
    loadStore();
    EXPECT_EQ(bytesOf(kept), kept);
  }
}

// What hinders reading now may be gone the next time: a loop of links, a folder, a pipe, a device.
TEST_F(PlayerData, AFileThatCantBeReadNowIsLeftAlone) {
  namespace fs = std::filesystem;
  popModes();
  putPlain(levelsFile, "One\n1\n");
  setText(tMode, "Arcade");
  for (const char* hindrance : {"loop", "folder", "pipe", "device", "temp"}) {
    const std::string what = hindrance;
    for (const PlayersFile& file : {scoresFile, storeFile, levelsFile}) {
      const fs::path place = what == "temp" ? nativePath(tempPath) : nativePath(pathOf(file));
      fs::remove(place);
      if (what == "loop") fs::create_symlink(place, place);
      if (what == "folder" || what == "temp") fs::create_directories(place / "inside");
      if (what == "pipe") mkfifo(place.c_str(), 0600);
      if (what == "device") fs::create_symlink("/dev/zero", place);
      const auto kind = fs::symlink_status(place).type();
      fake::resetToolkit();
      const std::string name = what == "temp" ? tempPath : pathOf(file);
      EXPECT_PRED2(holds, errorOf([&] { load(file); }), "\"" + name + "\" can't be ") << what;
      setText(tMode, "Arcade");
      EXPECT_EQ(tLevels.items, Texts{"One"}) << what << ": those known from before";
      EXPECT_EQ(fake::boxes.size(), file.name == levelsFile.name || what == "temp" ? 1U : 0U);
      EXPECT_EQ(fs::symlink_status(place).type(), kind);
      EXPECT_FALSE(exists(pathOf(file) + ".damaged")) << what;
      fs::remove_all(place);
      if (file.name == levelsFile.name) putPlain(levelsFile, "One\n1\n");
    }
  }
  EXPECT_EQ(takeNews(), "");
}

// A disk that takes nothing: folders stand where the new files would be written.
TEST_F(PlayerData, WhatCantBeStoredStaysInMemoryAndLaterSavesTryAgain) {
  const auto block = [](bool on) {
    for (const PlayersFile& file : {scoresFile, storeFile, levelsFile}) {
      const auto beside = nativePath(pathOf(file) + ".new");
      on ? std::filesystem::create_directory(beside) : std::filesystem::remove(beside);
    }
  };
  popModes();
  loadScores();
  setText(tMode, "Arcade");
  const std::string before = bytesOf("\\init\\6702");
  block(true);
  fake::typed = "Newcomer";
  score = 30000;
  enterHighScore();
  rewardLevelName = "Reward";
  rewardLevelFile = 77;
  awardLevel();
  bank = 77;
  const std::size_t asked = fake::boxes.size();
  saveStore();
  EXPECT_EQ(fake::boxes.size(), asked + 1) << "not again for what has just been given up";
  EXPECT_PRED2(holds, fake::boxes.back(), "\\init\\6702");
  saveStore();
  EXPECT_EQ(fake::boxes.size(), asked + 4) << "later for all";
  EXPECT_EQ(bytesOf("\\init\\6702"), before);
  setText(tMode, "Arcade");
  EXPECT_EQ(tLevels.items.back(), "Reward");
  EXPECT_PRED2(holds, scores_freestyle.items[0], "30000   \tNewcomer");
  fake::yes = True;
  fake::asked = [&] { block(false); };
  purchase_Click(slammerItem);
  EXPECT_EQ(plainOf(storeFile).substr(0, 4), "75\r\n");
  EXPECT_EQ(plainOf(scoresFile).substr(0, 16), "30000,Newcomer\r\n");
  EXPECT_PRED2(holds, plainOf(levelsFile), "Reward\r\n 77 \r\n");
  setText(tMode, "Arcade");
  EXPECT_EQ(tLevels.items, (Texts{"First Steps", "Reward"}));

  // Each file by itself, at closing and at the end of a run that fails.
  std::filesystem::create_directory(nativePath("\\init\\6095.new"));
  fake::resetToolkit();
  bank = 78;
  fMain_Form_Unload();
  EXPECT_EQ(fake::boxes.size(), 1U);
  EXPECT_EQ(plainOf(storeFile).substr(0, 4), "78\r\n");
  bank = 79;
  owe(storeFile);
  saveSilently();
  EXPECT_EQ(plainOf(storeFile).substr(0, 4), "79\r\n");
  block(false);
  saveSilently();
}

}  // namespace
}  // namespace glonks
