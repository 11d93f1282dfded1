#include <sys/stat.h>

#include <algorithm>
#include <cstring>
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

// What a player owns, on disk. Plain lines end with "\n" here.
class PlayerData : public TempFolder {
 protected:
  PlayerData() {
    makeKeys(keySeed, keyDrawArgument, keyScale);
    fake::resetToolkit();
    layOutMenu();
    popModes();
    takeNews();
    openLevels.clear();
    newLevels.clear();
  }
  static void putPlain(const PlayersFile& file, const std::string& plain) {
    putBytes("\\plain", plain);
    scrambleFile("\\plain", pathOf(file));
  }
  static std::string plainOf(const PlayersFile& file) { return plainOf(pathOf(file)); }
  static std::string plainOf(const std::string& path) {
    unscrambleFile(path, "\\plain");
    std::string plain = bytesOf("\\plain");
    plain.erase(std::remove(plain.begin(), plain.end(), '\r'), plain.end());
    return plain;
  }
  static void load(const PlayersFile& file) {
    if (file.name == scoresFile.name) loadScores();
    if (file.name == storeFile.name) loadStore();
    if (file.name == levelsFile.name) readOpenLevels();
  }
};

const std::string table = "1000,A\n900,B\n800,C\n700,D\n600,E\n500,F\n400,G\n300,H\n200,I\n100,J\n";

TEST_F(PlayerData, ScoresEnterTheirPlaceWithAStorableName) {
  const std::tuple<i32, const char*, std::size_t, const char*> entries[] = {
      // score, typed, where in the table, line there; nullptr: doesn't enter it
      {99, "low", 0, nullptr},
      {100, "as the last", table.size() - 6, "100,as the last\n"},
      {1000, "as the first", 0, "1000,as the first\n"},
      {750, "a,\"b\"\tc\x7f", 19, "750,a;'b' c\n"}};
  for (const auto& [points, typed, at, line] : entries) {
    fake::resetToolkit();
    putPlain(scoresFile, table);
    loadScores();
    fake::typed = typed;
    score = points;
    enterHighScore();
    EXPECT_EQ(fake::boxes.size(), line != nullptr ? 1U : 0U) << points;
    std::string expected = table;
    if (line != nullptr) expected.insert(at, line).resize(table.size() - 6 + strlen(line));
    EXPECT_EQ(plainOf(scoresFile), expected);
  }
  EXPECT_EQ(frame[scoresPage].visible, True);
  EXPECT_EQ(scores_freestyle.items[3], "04.    750   \ta;'b' c");
}

TEST_F(PlayerData, StoreHasThirteenLinesInItsOwnOrder) {
  putPlain(storeFile, "5\n10\n11\n13\n14\n15\n12\n0\n2\n0\n8\nEmbers\n40\n");
  loadStore();
  EXPECT_EQ(bank, 5);
  EXPECT_EQ(itemStock, (std::array<i16, itemKinds>{10, 11, 12, 13, 14, 15}));
  EXPECT_EQ(HScroll2.value, 40);
  saveStore();
  EXPECT_EQ(plainOf(storeFile), "5\n10\n11\n13\n14\n15\n12\n0\n1\n0\n8\nEmbers\n40\n");
  // By the leading numeric part, halves to even, to the nearest allowed value.
  putPlain(storeFile, "1e99\n-1\n 2.5,7\n3.5x\nx3\n\n\t6 6\n0.4\nyes\n\n-4\n \"Cells,\" ,\n101\n");
  loadStore();
  saveStore();
  EXPECT_EQ(plainOf(storeFile), "32767\n0\n2\n4\n0\n0\n6\n1\n0\n0\n0\nCells;\n100\n");
  EXPECT_FALSE(exists("\\init\\6702.damaged"));
}

TEST_F(PlayerData, PurchaseTakesThePriceOnceTheAnswerIsYes) {
  for (const auto& [spare, yes] : {std::pair{-1, True}, {0, False}, {0, True}}) {
    fake::resetToolkit();
    fake::yes = yes;
    const bool sold = spare == 0 && yes == True;
    const i16 price = storeItems[bombItem].price;
    itemStock.fill(3);
    bank = static_cast<i16>(price + spare);
    saveStore();
    const std::string before = plainOf(storeFile);
    mStore_Click();
    purchase_Click(bombItem);
    EXPECT_EQ(bank, sold ? 0 : price + spare);
    EXPECT_EQ(tBank.caption, plainNumber(bank));
    EXPECT_EQ(tpurchase[bombItem].caption, sold ? "4" : "3");
    EXPECT_EQ(plainOf(storeFile) != before, sold);
    EXPECT_PRED2(holds, fake::boxes.at(0), spare == 0 ? "a Bomb for 4 credits?" : "Insufficient");
  }
  purchase_Click(bonusSongItem);
  EXPECT_PRED2(holds, fake::boxes.back(), " yet.") << "not on sale";
}

TEST_F(PlayerData, AwardedLevelIsAddedOnceToFileAndList) {
  putPlain(levelsFile, "One, \"two\"\n 17 \n");
  setText(tMode, "Arcade");
  rewardLevelName = "Three";
  rewardLevelFile = 3;
  for (i32 win = 0; win < 2; ++win) awardLevel();
  EXPECT_EQ(fake::boxes.size(), 1U);
  EXPECT_EQ(plainOf(levelsFile), "One, \"two\"\n 17 \nThree\n 3 \n");
  EXPECT_EQ(tLevels.items, (Texts{"One, \"two\"", "Three"}));
}

// A player's file as it is found, what it is replaced by, and what the message says about it.
struct Damage {
  const PlayersFile& file;
  std::string plain;      // "missing": there is none, "first": what the game begins with
  std::size_t line;       // a scrambled line that is exchanged, counted from 0
  const char* scrambled;  // by this; nullptr: none is
  std::string left;       // plain lines, or "first"
  const char* told;
};

const std::string withoutD =
    "1000,A\n900,B\n800,C\n600,E\n500,F\n500,Sleepy Moss\n400,G\n300,H\n200,I\n100,J\n";
const std::string goods = "7\n2\n3\n4\n5\n6\n0\n1\n0\n8\nEmbers\n40\n";  // after the bank
const std::string sixLines = "One\n1\nTwo\n2\nThree Rocks\n3\n";
const std::string newStore = "5\n1\n1\n1\n1\n1\n1\n0\n0\n0\n0\nCells\n70\n";

const Damage damages[] = {
    {scoresFile, "missing", 0, nullptr, "first", "is missing."},
    {scoresFile, std::string(600'000, '\n'), 0, nullptr, "first", "None of its 10 scores"},
    {scoresFile, "first", 0, "x", "first", "9 of its 10 scores"},
    {scoresFile, table, 3, "x", withoutD, "9 of its 10 scores"},
    {scoresFile, table, 3, "1.1.1.1.1.1.1.1.1.1.1.1.1.1.1.1.1.", withoutD, "9 of its 10 scores"},
    {scoresFile, "1000,A\n900,B\n800,C\n700 D\n" + table.substr(25), 0, nullptr, withoutD, "9 of"},
    {storeFile, "77\n7\n2", 0, nullptr, "77\n7\n2" + newStore.substr(5), "3 of its 13 values"},
    {storeFile, "77\n" + goods, 0, "7a.1.", "5\n" + goods, "12 of its 13 values"},
    {levelsFile, "missing", 0, nullptr, "First Steps\n3101\n", "is missing."},
    {levelsFile, sixLines, 1, "x", sixLines.substr(6), "2 of its 3 levels"},
    {levelsFile, sixLines, 2, "x", "One\n1\nThree Rocks\n3\n", "2 of its 3 levels"},
    {levelsFile, "One\n1\nTwo\n", 0, nullptr, "One\n1\n", "1 of its 2 levels"},
};

TEST_F(PlayerData, OfADamagedFileWhatCanBeReadIsKeptAndTheRestPutAside) {
  for (const auto& [file, plain, line, scrambled, left, told] : damages) {
    fake::resetToolkit();
    const std::string path = pathOf(file);
    const std::string aside = path + ".damaged";
    const std::string first = plainOf(firstContentsOf(file));
    putPlain(file, plain == "first" ? first : plain);
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
    EXPECT_EQ(plainOf(file), left == "first" ? first : left)
        << path << plain.substr(0, 100) << told;
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
  putPlain(levelsFile, "One\n1\n");
  setText(tMode, "Arcade");
  for (const std::string what : {"loop", "folder", "pipe", "device", "temp"}) {
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
  EXPECT_EQ(plainOf(storeFile).substr(0, 3), "75\n");
  EXPECT_EQ(plainOf(scoresFile).substr(0, 15), "30000,Newcomer\n");
  EXPECT_PRED2(holds, plainOf(levelsFile), "Reward\n 77 \n");
  setText(tMode, "Arcade");
  EXPECT_EQ(tLevels.items, (Texts{"First Steps", "Reward"}));

  // Each file by itself, at closing and at the end of a run that fails.
  std::filesystem::create_directory(nativePath("\\init\\6095.new"));
  fake::resetToolkit();
  bank = 78;
  fMain_Form_Unload();
  EXPECT_EQ(fake::boxes.size(), 1U);
  EXPECT_EQ(plainOf(storeFile).substr(0, 3), "78\n");
  bank = 79;
  owe(storeFile);
  saveSilently();
  EXPECT_EQ(plainOf(storeFile).substr(0, 3), "79\n");
  block(false);
  saveSilently();
}

}  // namespace
}  // namespace glonks
