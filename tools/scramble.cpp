#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "base/paths.h"
#include "storage/files/scrambledfiles.h"
#include "storage/playerfiles.h"
#include "tools/levelcheck.h"

// Scrambles the plain data files into the game's folder: scramble <data> <game folder>.
// Faults in them are printed, a line for each, and then nothing is written.
// Files that belong to the player go to where the game keeps their first contents. In their own
// place they are written only where they are missing or empty, so that a rebuild takes nothing
// away.
namespace {

namespace fs = std::filesystem;
using namespace glonks;

const PlayersFile* playersFile(const std::string& name) {
  for (const PlayersFile* file : {&scoresFile, &storeFile, &levelsFile}) {
    if (file->name == name) return file;
  }
  return nullptr;
}

void scrambleFolder(const fs::path& data, const std::string& folder) {
  fs::create_directories(programFolder() / folder);
  for (const fs::directory_entry& entry : fs::directory_iterator(data / folder)) {
    const std::string name = entry.path().filename().string();
    const PlayersFile* players = playersFile(name);
    if (players != nullptr) scrambleFile(entry.path().string(), firstContentsOf(*players));
    const fs::path target = programFolder() / folder / name;
    if (players != nullptr && fs::exists(target) && !fs::is_empty(target)) continue;
    scrambleFile(entry.path().string(), "\\" + folder + "\\" + name);
  }
}

bool printFaults(const fs::path& data) {
  const std::vector<LevelFault> faults = checkLevels(data);
  for (const LevelFault& fault : faults) {
    std::cerr << fault.file.string() << ':' << fault.line << ": " << fault.text << '\n';
  }
  return !faults.empty();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: scramble <data folder> <game folder>\n";
    return EXIT_FAILURE;
  }
  try {
    const fs::path data = fs::absolute(argv[1]);
    if (printFaults(data)) return EXIT_FAILURE;
    setProgramFolder(fs::absolute(argv[2]));
    makeKeys(keySeed, keyDrawArgument, keyScale);
    fs::create_directories(programFolder() / "first");
    scrambleFolder(data, "init");
    scrambleFolder(data, "levels");
  } catch (const std::exception& error) {
    std::cerr << "scramble: " << error.what() << '\n';
    return EXIT_FAILURE;
  }
  return EXIT_SUCCESS;
}
