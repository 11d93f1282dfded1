#include "tools/levelcheck.h"

#include <iterator>
#include <map>
#include <set>
#include <sstream>

#include "tests/tempfolder.h"

namespace glonks {
namespace {

namespace fs = std::filesystem;
using Lines = std::vector<std::string>;

std::string title(i32 number) { return "Level " + std::to_string(number) + " of the lot!!"; }

// Level 101 to 140 of a chain without faults, by lines; the spawn entries begin at line 11.
Lines soundLevel(i32 number) {
  const i32 place = number - 101;
  const i32 chapter = place / 8;
  const i32 next = number == 140 ? 101 : number + 1;
  const char* const subjects[] = {"Glonk",   "Slammer", "Bomb",   "Rock",  "Calculator",
                                  "Shifter", "Gorgon",  "Bauble", "Money", "Music"};
  const std::string subject = subjects[place / 4];
  const bool isTimed = place % 4 >= 2;
  const std::string score = isTimed ? "1" : "100000000";
  Lines lines = {"1000",
                 title(number),
                 title(next),
                 std::to_string(next),
                 "1," + subject,
                 place % 2 == 0 ? "-1" : score,
                 isTimed ? "2,0" : "-1,-1",
                 "-1,-1",
                 number == 125 ? "1,Glonk" : "-1,-1",
                 number == 126 ? "1,Rock" : "-1,-1"};
  const char* const entries[] = {"Glonk,4",  "Slammer,0", "Bomb,0",    "Rock,1",
                                 "Money,0",  "Diamond,0", "Shifter,0", "Calculator,0",
                                 "Gorgon,0", "Bauble,0",  "Music,0",   "Bowling Ball,0"};
  const i32 lasts[] = {1, 4, 7, 9, 11};
  for (i32 entry = 0; entry <= lasts[chapter]; ++entry) {
    lines.push_back(std::string(entries[entry]) + "," + std::to_string(10 * entry) + "," +
                    (entry == lasts[chapter] ? "999" : std::to_string(10 * entry + 9)));
  }
  return lines;
}

// One line of a file, or all of them for line 0.
struct Edit {
  std::string file;
  std::size_t line;
  std::string text;
};

// Level 140 with all but its title and its reward.
Edit last(const std::string& interval, const std::string& rest) {
  return {"levels/140", 0, interval + "\n" + title(140) + "\n" + title(101) + "\n101\n" + rest};
}

// Edits of the sound chain, and file and line of each fault that they make.
struct Broken {
  std::vector<Edit> edits;
  std::string faults;
};

const Broken table[] = {
    {{}, ""},
    // Piece files and the other levels.
    {{{"init/1980", 0, "\none" + std::string(16, '\n') + "3E9"}}, "1980:1 1980:2 1980:18"},
    {{{"levels/2193", 0, "3600001"}}, "2193:1 2193:2"},
    // Fields, goals and entries.
    {{{"levels/140", 0,
       "0\n \ntwo\n101\n0,Glonk\n0\n-32767,30\n1,0\n-1,Nothing\n-1,-1\n"
       "Glonk,1,0,499\nBomb,0,490,999"}},
     "139:3 140:1 140:2 140:3 140:5 140:6 140:7 140:8 140:9 140:12"},
    {{last("40000", "3,Glnk\n-1\n3,59\n2,0\n-1,-1\n-1,-1\nGlonk,1,1,998")},
     "140:5 140:8 140:8 140:11 140:11"},
    {{last("1", "3,Bomb\n-1\n-1,-1\n-1,-1\n3,Bomb\n4,Glonk\nGlonk,1,0,499\nGlonk,1,500,999")},
     "140:5 140:5 140:9 140:10 140:12"},
    {{last("1.5", "-1,Nothing\n70000\n2,60\n-1,-1\n-1,-1\n-1,-1\nBomb,1,0,999")},
     "140:1 140:7 140:11"},
    {{last("1",
           "2,Bowling Ball\n-1\n2,-1\n-1,-1\n-1,-1\n1,Bowling Ball\nBowling Ball,0,999,500\n"
           "Glonk,1,0,1000")},
     "140:5 140:7 140:10 140:11 140:12 140:12"},
    {{last("1",
           "-1,-1\n-1\n-1,-1\n-1,-1\n-1,-1\n-1,-1\nBomb,0,0\nGlonk,1,0,999,7\nGlonk,1,0,999\n")},
     "140:5 140:11 140:12 140:14"},
    {{last("1", "40000,Glonk")}, "140:5 140:6"},
    {{last("1",
           "1,Gorgon\n-1\n-1,-1\n-1,-1\n2,Rock\n-1,-1\nBomb,0,0,0\nGlonk,4,1,799\n"
           "Rock,1,800,998\nBauble,0,999,999")},
     "140:5 140:9"},
    // What time has room for; these also have four lines of goals.
    {{last("20000", "4,Slammer\n6418\n1,1\n-1,-1\n-1,-1\n5,Slammer\nSlammer,0,0,999")},
     "140:5 140:10"},
    {{last("60000",
           "5,Gorgon\n2019\n1,1\n-1,-1\n-1,-1\n4,Gorgon\nGorgon,0,0,499\nBowling Ball,0,500,999")},
     "140:5 140:5 140:6"},
    {{last("60000",
           "9,Bauble\n18470\n1,1\n-1,-1\n-1,-1\n8,Bauble\nCalculator,0,0,499\nBauble,0,500,799\n"
           "Slammer,0,800,999")},
     "140:5 140:5"},
    // What fits on the screen.
    {{{"levels/134", 6, "1000000000"}}, "134:6"},
    {{{"levels/140", 2, title(140) + "!"}}, "139:3 140:2"},
    {{{"levels/140", 2, "What?"}}, "139:3 140:2"},
    {{{"init/1980", 1, "Twenty-three characters"},
      {"levels/137", 5, "1,Twenty-three characters"},
      {"levels/137", 22, "Twenty-three characters,0,110,999"}},
     "137:5"},
    // The chain.
    {{{"init/6537", 0, title(102) + "\n101\n" + title(102) + "\n102"}}, "6537:1 6537:3"},
    {{{"init/6537", 0, "None\n2193"}}, "6537:2"},
    {{{"init/6537", 0, ""}}, "6537:1"},
    {{{"levels/139", 4, "2193"}}, "139:4 139:4 140:1"},
    {{{"levels/139", 3, title(101)}, {"levels/139", 4, "101"}}, "139:4 140:1"},
    {{{"levels/140", 3, title(138)}, {"levels/140", 4, "138"}}, "140:4"},
    {{{"levels/140", 3, "More"},
      {"levels/140", 4, "141"},
      {"levels/141", 0,
       "1\nMore\n" + title(101) + "\n101\n-1,-1\n-1\n-1,-1\n2,0\n-1,-1\n-1,-1\nGlonk,1,0,999"}},
     "141:4"},
    // Chapters.
    {{{"levels/108", 11, "Bomb,0,0,9"}, {"levels/117", 9, "1,Rock"}}, "108:11 117:9"},
    {{{"levels/140", 22, "Pin,0,110,999"}}, "140:22"},
    {{{"levels/126", 10, "-1,-1"}}, "125:1"},
    // Twins.
    {{{"levels/132", 3, title(101)}, {"levels/133", 2, title(101)}}, "133:2"},
    {{{"levels/102", 5, "7,Glonk"}, {"levels/102", 6, "-1"}}, "102:5"}};

class LevelCheck : public TempFolder {
 protected:
  // The sound chain with some edits.
  void write(const std::vector<Edit>& edits) const {
    std::map<std::string, Lines> files = {
        {"init/6537", {title(101), "101"}},
        {"init/1980", {"BType", "0", "none\n1\n0\n1\n0\n0\n0\n0\n0\n0\n0\n0\n0\n0\n9\n0\n0\n0"}},
        {"levels/2193", {"1000", "Glonk,1,0,999"}}};
    for (i32 number = 101; number <= 140; ++number) {
      files["levels/" + std::to_string(number)] = soundLevel(number);
    }
    for (const auto& [file, line, text] : edits) {
      if (line == 0) {
        files[file] = {text};
      } else {
        files[file].at(line - 1) = text;
      }
    }
    fs::remove_all(data);
    fs::create_directories(data / "levels");
    fs::copy(GLONKS_SOURCE "/data/init", data / "init");
    for (const auto& [file, lines] : files) {
      std::ofstream out(data / file, std::ios::binary);
      const char* const end = file < "k" ? "\n" : "\r\n";
      for (const std::string& line : lines) out << line << (line.empty() ? "" : end);
    }
  }

  const fs::path data = folder / "data";
};

TEST_F(LevelCheck, TellsEachFaultWithFileAndLine) {
  EXPECT_TRUE(checkLevels(GLONKS_SOURCE "/data").empty()) << "the game's own data has no faults";
  std::string texts;
  for (const auto& [edits, faults] : table) {
    write(edits);
    std::multiset<std::string> found;
    std::string told;
    for (const auto& [file, line, text] : checkLevels(data)) {
      found.insert(file.filename().string() + ":" + std::to_string(line));
      told += file.filename().string() + ":" + std::to_string(line) + ": " + text + "\n";
    }
    std::istringstream expected(faults);
    using Words = std::istream_iterator<std::string>;
    EXPECT_EQ(found, std::multiset<std::string>(Words(expected), Words())) << told;
    texts += told;
  }
  for (const char* text : {"140:6: goalScore is more than the 2018 that the time",
                           "1980:18: The file \"1980\" is damaged: its field timerMax is",
                           "102:5: asks the same as level 101: remove Glonk."}) {
    EXPECT_PRED2(holds, texts, text);
  }
}

}  // namespace
}  // namespace glonks
