#include <tuple>

#include "base/text.h"
#include "game/model/model.h"
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
#include "tests/fakes/random.h"
#include "tests/fakes/toolkit.h"
#include "tests/tempfolder.h"

namespace glonks {
namespace {

using Texts = std::vector<std::string>;

// What a player owns, on disk.
class PlayerData : public TempFolder {
 protected:
  PlayerData() {
    fake::useGenerator();
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
  // Out of range, to the nearest allowed value; a fraction to the even neighbour.
  putPlain(storeFile, "99999\n-1\n2.5\n3.5\n0\n0\n0\n0\n0\n0\n-4\n \"Cells,\" , 101\n");
  loadStore();
  EXPECT_EQ(bank, 32767);
  EXPECT_EQ(itemStock, (std::array<i16, itemKinds>{0, 2, 0, 4, 0, 0}));
  EXPECT_TRUE(notesCollected == 0 && themeName == "Cells;" && musicVolume == 100);
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
  putPlain(levelsFile, "a level without its number\r\n");
  rewardLevelName = "Four";
  awardLevel();
  EXPECT_EQ(plainOf(levelsFile), "First Steps\r\n3101\r\nFour\r\n 3 \r\n");
}

TEST_F(PlayerData, DamagedFilesAreKeptAsideAndMadeAnewWithOneMessage) {
  const auto loadAll = [] {
    loadScores();
    loadStore();
    popModes();
    setText(tMode, "Arcade");
  };
  const std::string damages[] = {"",        "7.x.\r\n", "1.2.3.\r\n4.\r\n",
                                 "no file", "short",    "no number"};
  for (const std::string& damage : damages) {
    for (const PlayersFile& file : {scoresFile, storeFile, levelsFile}) {
      fake::resetToolkit();
      const std::string path = pathOf(file);
      std::filesystem::remove(nativePath(path));
      if (damage == "short") {
        putPlain(file, "7\r\n");
      } else if (damage == "no number") {
        putPlain(file, "Cells\r\nseven\r\n" + hundreds() + hundreds());
      } else if (damage != "no file") {
        putBytes(path, damage);
      }
      const std::string before = bytesOf(path);
      loadAll();
      tellOfNewFiles();
      EXPECT_EQ(fake::boxes.size(), 1U) << path << damage;
      EXPECT_PRED2(holds, fake::boxes.at(0), path) << damage;
      EXPECT_EQ(bytesOf(path), bytesOf(firstContentsOf(file))) << damage;
      const std::string aside = path + ".damaged";
      EXPECT_EQ(exists(aside), damage != "no file") << path << damage;
      EXPECT_EQ(bytesOf(aside), before) << path << damage;
      std::filesystem::remove(nativePath(aside));
    }
  }
  EXPECT_TRUE(bank == 5 && musicVolume == 70 && itemStock[5] == 1);
  EXPECT_TRUE(highScores[0].points == 25000 && highScores[9].points == 500);
  for (const char* kept : {"\\init\\6702.damaged", "\\init\\6702.damaged2"}) {
    putBytes("\\init\\6702", kept);
    loadStore();
    EXPECT_EQ(bytesOf(kept), kept);
  }
}

// A disk that takes nothing: a folder stands where the new file would be written.
TEST_F(PlayerData, FailedWriteIsTriedAgainOrGivenUpAndTakesNothing) {
  std::filesystem::create_directory(nativePath("\\init\\6702.new"));
  const std::string before = bytesOf("\\init\\6702");
  EXPECT_PRED2(holds, errorOf(saveStore), "\\init\\6702");
  EXPECT_EQ(fake::boxes.size(), 1U);
  EXPECT_EQ(bytesOf("\\init\\6702"), before);
  EXPECT_EQ(errorOf(loadStore), "no error");
  bank = 77;
  fake::yes = True;
  fake::asked = [] { std::filesystem::remove(nativePath("\\init\\6702.new")); };
  saveStore();
  EXPECT_EQ(fake::boxes.size(), 2U);
  EXPECT_EQ(plainOf(storeFile).substr(0, 4), "77\r\n");
}

}  // namespace
}  // namespace glonks
