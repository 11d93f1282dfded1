#include "tools/levelcheck.h"

#include <map>

#include "tests/tempfolder.h"

namespace glonks {
namespace {

namespace fs = std::filesystem;
using Lines = std::vector<std::string>;

// Level 11 has a score and an avoid goal, 12 a survival timer; each is the other's reward.
const std::map<std::string, Lines> goodFiles = {
    {"levels/2193", {"40000", "Glonk,1,0,999"}},
    {"levels/11",
     {"900", "One", "Two", "12", "-1,Nothing", "70000", "-1,-1", "-1,-1", "3,Bomb", "-1,-1",
      "Glonk,1,0,499", "Bomb,0,500,999"}},
    {"levels/12",
     {"900", "Two", "One", "11", "-1,-1", "-1", "-1,-1", "2,0", "-1,-1", "-1,-1", "Glonk,1,0,999"}},
    {"init/8752", {"Music", "0"}},
    {"init/6537", {"One", "11"}}};

const std::string cut = "the file ends before this line";

// The good files with one line replaced; file and line of one of the faults that come of it, part
// of its text, and how many they are.
struct Broken {
  std::string file;
  std::size_t line;
  std::string text;
  std::string place;
  std::string part;
  std::size_t count = 1;
};

const Broken table[] = {
    {"levels/2193", 1, "0", "2193:1", "spawnInterval isn't above 0"},
    {"levels/2193", 1, "2s", "2193:1", "spawnInterval isn't a whole number"},
    {"levels/11", 2, " ", "11:2", "levelTitle is empty", 3},
    {"levels/11", 2, std::string(637, 'x'), "11:2", "longer than 636", 3},
    {"levels/11", 3, "two", "11:3", "\"Two\", the title of level 12"},
    {"levels/12", 4, "2193", "12:4", "no such Arcade level"},
    {"levels/11", 4, "11", "12:1", "no level that can be reached", 2},
    {"levels/11", 5, "0,Glonk", "11:5", "goalPieceCount is neither"},
    {"levels/11", 5, "40000,Glonk", "11:5", "goalPieceCount is out of range"},
    {"levels/11", 5, "3,Glnk", "11:5", "\"Glnk\" is no piece's name"},
    {"levels/11", 6, "0", "11:6", "goalScore is neither"},
    {"levels/11", 6, "-1", "11:5", "no piece, score or land goal"},
    {"levels/12", 6, "500", "12:8", "a survival timer and a piece"},
    {"levels/12", 7, "3,20", "12:8", "a survival timer and a time limit"},
    {"levels/11", 7, "0,30", "11:7", "limitMinutes isn't above 0"},
    {"levels/11", 7, "2,60", "11:7", "limitSeconds isn't from 0 to 59"},
    {"levels/11", 7, "2,-1", "11:7", "limitSeconds isn't from 0 to 59"},
    {"levels/12", 8, "1,0", "12:8", "switches no timer on"},
    {"levels/11", 9, "-1,Nothing", "11:9", "avoidName isn't -1"},
    {"levels/11", 10, "4,Glonk", "11:10", "an avoid goal and a land goal"},
    {"levels/12", 10, cut, "12:10", "landLeft is missing"},
    {"levels/12", 11, cut, "12:11", "no piece for the draws 0 to 999"},
    {"levels/11", 11, "Glonk,1,1,480", "11:12", "no piece for the draws 481 to 499", 2},
    {"levels/11", 12, "Bomb,0,490,999", "11:12", "draws 490 to 499 are taken by"},
    {"levels/11", 12, "Bomb,0,500,1000", "11:12", "no range from 0 to 999", 2},
    {"levels/11", 12, "Bomb,0,999,500", "11:12", "no range from 0 to 999", 2},
    {"levels/11", 12, "Bomb,0.5,500,999", "11:12", "variety isn't a whole number"},
    {"levels/11", 12, "Bomb,1,500,999", "11:12", "no piece \"Bomb\" of variety 1"},
    {"levels/11", 12, "Glonk,1,500,999", "11:12", "variety 1 has an entry before"},
    {"levels/11", 11, "Glonk,1,499", "11:11", "a line of four fields", 2},
    {"levels/11", 11, "Glonk,1,0,499,7", "11:11", "a line of four fields", 2},
    {"levels/11", 12, "Bomb,0,500,999\n", "11:13", "a line of four fields"},
    {"init/6537", 1, "Two", "6537:1", "\"One\", the title of level 11"},
    {"init/6537", 2, "2193", "6537:2", "no such Arcade level", 3},
    {"init/6537", 2, cut, "6537:2", "level number is missing", 3},
    {"init/8752", 1, "", "8752:1", "name is empty"},
    {"init/8752", 2, "one", "8752:2", "variety isn't a whole number"},
};

class LevelCheck : public TempFolder {
 protected:
  LevelCheck() {
    fs::create_directories(data / "levels");
    fs::copy(GLONKS_SOURCE "/data/init", data / "init");
    for (const auto& [file, lines] : goodFiles) write(file, lines);
  }
  void write(const std::string& file, const Lines& lines) const {
    std::ofstream out(data / file, std::ios::binary);
    for (const std::string& line : lines) out << line << (file < "k" ? "\n" : "\r\n");
  }
  static Lines faultsIn(const fs::path& folder) {
    Lines lines;
    for (const auto& [file, line, text] : checkLevels(folder)) {
      lines.push_back(file.filename().string() + ":" + std::to_string(line) + ": " + text);
    }
    return lines;
  }
  const fs::path data = folder / "data";
};

TEST_F(LevelCheck, TellsWhatIsWrongAndWhere) {
  EXPECT_EQ(faultsIn(data), Lines());
  for (const auto& [file, line, text, place, part, count] : table) {
    Lines lines = goodFiles.at(file);
    if (text == cut) lines.resize(line - 1);
    if (text != cut) lines[line - 1] = text;
    write(file, lines);
    std::string matching;
    const Lines faults = faultsIn(data);
    for (const std::string& fault : faults) {
      if (fault.rfind(place + ": ", 0) == 0 && holds(fault, part)) matching = fault;
    }
    EXPECT_TRUE(!matching.empty() && faults.size() == count)
        << place << " " << part << " and " << count << " in all, not "
        << ::testing::PrintToString(faults);
    write(file, goodFiles.at(file));
  }
}

TEST_F(LevelCheck, TheGamesOwnDataHasNoFaults) {
  EXPECT_EQ(faultsIn(GLONKS_SOURCE "/data"), Lines());
  write("init/6537", {});  // no level file but Freestyle
  fs::remove(data / "levels/11");
  fs::remove(data / "levels/12");
  EXPECT_EQ(faultsIn(data), Lines());
}

}  // namespace
}  // namespace glonks
