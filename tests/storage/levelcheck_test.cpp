#include "tools/levelcheck.h"

#include <iterator>
#include <set>
#include <sstream>

#include "tests/tempfolder.h"

namespace glonks {
namespace {

namespace fs = std::filesystem;

// One line of a file, or all of them for line 0.
struct Edit {
  std::string file;
  std::size_t line;
  std::string text;
};

// The last level of the chain with all but its title and its reward.
Edit last(const std::string& interval, const std::string& rest) {
  return {"levels/3140", 0, interval + "\nGrand Finale\nFirst Steps\n3101\n" + rest};
}

// Edits of the game's own data, and file and line of each fault that they make.
struct Broken {
  std::vector<Edit> edits;
  std::string faults;
};

const Broken table[] = {
    {{}, ""},
    // Piece files and the other levels.
    {{{"init/1980", 0, "\none" + std::string(16, '\n') + "3E9"}, {"levels/2193", 0, "3600001"}},
     "1980:1 1980:2 1980:18 2193:1 2193:2"},
    // Fields, goals and entries.
    {{{"levels/3140", 0,
       "0\n \ntwo\n3101\n0,Glonk\n0\n-32767,30\n1,0\n-1,Nothing\n-1,-1\n"
       "Glonk,1,0,499\nBomb,0,490,999"}},
     "3139:3 3140:1 3140:2 3140:3 3140:5 3140:6 3140:7 3140:8 3140:9 3140:12"},
    {{last("40000", "3,Glnk\n-1\n3,59\n2,0\n-1,-1\n-1,-1\nGlonk,1,1,998")},
     "3140:5 3140:8 3140:8 3140:11 3140:11"},
    {{last("1", "3,Bomb\n-1\n-1,-1\n-1,-1\n3,Bomb\n4,Glonk\nGlonk,1,0,499\nGlonk,1,500,999")},
     "3140:5 3140:5 3140:9 3140:10 3140:12"},
    {{last("1.5", "-1,Nothing\n70000\n2,60\n-1,-1\n-1,-1\n-1,-1\nBomb,1,0,999")},
     "3140:1 3140:5 3140:7 3140:11"},
    {{last("1",
           "2,Bowling Ball\n-1\n2,-1\n-1,-1\n-1,-1\n1,Bowling Ball\nBowling Ball,0,999,500\n"
           "Glonk,1,0,1000")},
     "3140:5 3140:7 3140:10 3140:11 3140:12 3140:12"},
    {{last("1",
           "-1,-1\n-1\n-1,-1\n-1,-1\n-1,-1\n-1,-1\nBomb,0,0\nGlonk,1,0,999,7\nGlonk,1,0,999\n")},
     "3140:5 3140:11 3140:12 3140:14"},
    {{last("1", "40000,Glonk")}, "3140:5 3140:6"},
    {{last("1",
           "1,Gorgon\n-1\n-1,-1\n-1,-1\n2,Rock\n-1,-1\nBomb,0,0,0\nGlonk,4,1,799\n"
           "Rock,1,800,998\nBauble,0,999,999")},
     "3140:5 3140:9"},
    // What time has room for; these also have four lines of goals.
    {{last("20000", "4,Slammer\n6418\n1,1\n-1,-1\n-1,-1\n5,Slammer\nSlammer,0,0,999")},
     "3140:5 3140:10"},
    {{last("60000",
           "5,Gorgon\n2019\n1,1\n-1,-1\n-1,-1\n4,Gorgon\nGorgon,0,0,499\nBowling Ball,0,500,999")},
     "3140:5 3140:5 3140:6"},
    {{last("60000",
           "9,Bauble\n18470\n1,1\n-1,-1\n-1,-1\n8,Bauble\nCalculator,0,0,499\nBauble,0,500,799\n"
           "Slammer,0,800,999")},
     "3140:5 3140:5"},
    // What fits on the screen.
    {{{"levels/3139", 3, "Twenty two characters!"}, {"levels/3140", 2, "Twenty two characters!"}},
     ""},
    {{{"levels/3134", 7, "1000000000"}, {"levels/3140", 2, "Twenty-three characters"}},
     "3134:7 3139:3 3140:2 3140:2"},
    {{{"init/1980", 1, "Twenty-three characters"},
      {"levels/3137", 5, "1"},
      {"levels/3137", 6, "Twenty-three characters"},
      {"levels/3137", 27, "Twenty-three characters,0,978,999"}},
     "3137:6"},
    // The chain.
    {{{"init/6537", 0, "Two by Two\n3101\nTwo by Two\n3109"}}, "6537:1 6537:3"},
    {{{"init/6537", 0, "None\n2193"}}, "6537:2"},
    {{{"init/6537", 0, ""}}, "6537:2"},
    {{{"levels/3139", 4, "2193"}}, "3139:4 3139:4 3140:1"},
    {{{"levels/3139", 3, "First Steps"}, {"levels/3139", 4, "3101"}}, "3139:4 3140:1"},
    {{{"levels/3140", 3, "Gorgon Parade"}, {"levels/3140", 4, "3137"}}, "3140:4"},
    {{{"levels/3140", 3, "More"},
      {"levels/3140", 4, "3141"},
      {"levels/3141", 0,
       "1\nMore\nFirst Steps\n3101\n-1,-1\n-1\n-1,-1\n2,0\n-1,-1\n-1,-1\nGlonk,1,0,999"}},
     "3141:4 3141:5"},
    // Chapters.
    {{{"levels/3101", 17, "Bomb,0,532,549"},
      {"levels/3117", 12, "1"},
      {"levels/3117", 13, "Rock"},
      {"levels/3140", 30, "Pin,0,990,999"}},
     "3101:17 3117:12 3140:30"},
    {{{"levels/3103", 0,
       "1\nRock Shower\nPet Rocks\n3104\n1,Rock,1,9,59\n-1,-1\n-1,-1\n-1,-1\nRock,1,0,99\n"
       "Bomb,0,100,999"},
      {"levels/3132", 0,
       "1\nJewel Box\nGorgon Hunt\n3107\n1,Rock,1,-1,-1\n-1,-1\n9,Bomb\n-1,-1\nRock,1,0,99\n"
       "Bomb,0,100,999"}},
     "3103:1"},
    // Twins.
    {{{"levels/3132", 3, "First Steps"},
      {"levels/3107", 2, "First Steps"},
      {"levels/3134", 6, "Bomb"}},
     "3107:2 3134:5"}};

void write(const fs::path& data, const std::vector<Edit>& edits) {
  fs::remove_all(data);
  fs::copy(GLONKS_SOURCE "/data", data, fs::copy_options::recursive);
  for (const auto& [file, line, text] : edits) {
    std::ifstream before(data / file);
    std::string lines, each;
    for (std::size_t number = 1; std::getline(before, each); ++number) {
      lines += (number == line ? text : each) + "\n";
    }
    std::ofstream(data / file) << (line == 0 ? text + "\n" : lines);
  }
}

using LevelCheck = TempFolder;

TEST_F(LevelCheck, TellsEachFaultWithFileAndLine) {
  const fs::path data = folder / "data";
  std::string texts;
  for (const auto& [edits, faults] : table) {
    write(data, edits);
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
  for (const char* text : {"3140:6: goalScore is more than the 2018 that the time",
                           "1980:18: The file \"1980\" is damaged: its field timerMax is",
                           "3134:5: asks the same as level 3117: remove Bomb."}) {
    EXPECT_PRED2(holds, texts, text);
  }
}

}  // namespace
}  // namespace glonks
