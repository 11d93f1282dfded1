#include "tools/levelcheck.h"

#include <map>
#include <set>

#include "tests/tempfolder.h"

namespace glonks {
namespace {

namespace fs = std::filesystem;
using Lines = std::vector<std::string>;
using LineNumbers = std::multiset<i32>;

// A file and the numbers of its faulty lines, once for each fault; 1 too for a level that nothing
// opens. The lines between them are as they should be.
struct Broken {
  std::string file;
  Lines lines;
  LineNumbers faults;
};

// Levels 12 and 14 are opened by winning 11 and 12.
const Broken brokenFiles[] = {
    {"init/8752",
     {"", "one", "", "", "", "", "", "", "", "", "", "", "", "", "", "", "", "3E9"},
     {1, 2, 18}},
    {"init/6537", {"One", "11", "Five", "15", "Six", "16", "Seven", "17", "None", "10"}, {1, 10}},
    {"levels/2193", {"3600001"}, {1, 2}},
    {"levels/11",
     {"0", " ", "two", "12", "0,Glonk", "0", "-32767,30", "1,0", "-1,Nothing", "-1,-1",
      "Glonk,1,0,499", "Bomb,0,490,999"},
     {1, 2, 3, 5, 6, 7, 8, 9, 12}},
    {"levels/12",
     {"40000", "Two", "Four", "14", "3,Glnk", "-1", "3,59", "2,0", "-1,-1", "-1,-1",
      "Glonk,1,1,998"},
     {5, 8, 8, 11, 11}},
    {"levels/13",
     {"1", std::string(637, 'x'), "Four", "14", "3,Bomb", "-1", "-1,-1", "-1,-1", "3,Bomb",
      "4,Glonk", "Glonk,1,0,499", "Glonk,1,500,999"},
     {1, 2, 5, 5, 9, 10, 12}},
    {"levels/14",
     {"1.5", "Four", "Free", "2193", "-1,Nothing", "70000", "2,60", "-1,-1", "-1,-1", "-1,-1",
      "Bomb,1,0,999"},
     {1, 4, 7, 11}},
    {"levels/15",
     {"1", "Five", "Two", "12", "2,Bowling Ball", "-1", "2,-1", "-1,-1", "-1,-1", "1,Bowling Ball",
      "Bowling Ball,0,999,500", "Glonk,1,0,1000"},
     {5, 7, 10, 11, 12, 12}},
    {"levels/16",
     {"1", "Six", "Two", "12", "-1,-1", "-1", "-1,-1", "-1,-1", "-1,-1", "-1,-1", "Bomb,0,0",
      "Glonk,1,0,999,7", "Glonk,1,0,999", ""},
     {5, 11, 12, 14}},
    {"levels/17", {"1", "Seven", "Two", "12", "40000,Glonk"}, {5, 6}},
    {"levels/20",
     {"1", "Never", "Two", "12", "1,Gorgon", "-1", "-1,-1", "-1,-1", "2,Rock", "-1,-1",
      "Bomb,0,0,0", "Glonk,4,1,799", "Rock,1,800,998", "Bauble,0,999,999"},
     {1, 5, 9}},
    {"levels/23",
     {"20000", "Full", "Two", "12", "4,Slammer", "6418", "1,1", "-1,-1", "-1,-1", "5,Slammer",
      "Slammer,0,0,999"},
     {1, 10}},
    {"levels/24",
     {"60000", "Brood", "Two", "12", "5,Gorgon", "2019", "1,1", "-1,-1", "-1,-1", "4,Gorgon",
      "Gorgon,0,0,499", "Bowling Ball,0,500,999"},
     {1, 5, 6}},
    {"levels/25",
     {"60000", "Paid", "Two", "12", "9,Bauble", "18470", "1,1", "-1,-1", "-1,-1", "8,Bauble",
      "Calculator,0,0,499", "Bauble,0,500,799", "Slammer,0,800,999"},
     {1, 5}}};

using LevelCheck = TempFolder;

TEST_F(LevelCheck, TellsEachFaultWithFileAndLine) {
  EXPECT_TRUE(checkLevels(GLONKS_SOURCE "/data").empty()) << "the game's own data has no faults";
  const fs::path data = folder / "data";
  fs::create_directories(data / "levels");
  fs::copy(GLONKS_SOURCE "/data/init", data / "init");
  for (const auto& [file, lines, faults] : brokenFiles) {
    std::ofstream out(data / file, std::ios::binary);
    for (const std::string& line : lines) out << line << (file < "k" ? "\n" : "\r\n");
  }
  std::map<fs::path, LineNumbers> found;
  std::string texts;
  for (const auto& [file, line, text] : checkLevels(data)) {
    found[file].insert(line);
    texts += "\n" + file.filename().string() + ":" + std::to_string(line) + ": " + text;
  }
  for (const auto& [file, lines, faults] : brokenFiles)
    EXPECT_EQ(found[data / file], faults) << file << texts;
  EXPECT_EQ(found.size(), std::size(brokenFiles)) << texts;
  EXPECT_PRED2(holds, texts, "\n24:6: goalScore is more than the 2018 that the time");
  EXPECT_PRED2(holds, texts, "\n8752:18: The file \"8752\" is damaged: its field timerMax is");
}

}  // namespace
}  // namespace glonks
