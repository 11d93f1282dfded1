#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>

#include "base/errors.h"
#include "base/paths.h"
#include "game/loading/levels.h"
#include "game/loading/newgame.h"
#include "game/loading/pieces.h"
#include "game/model/model.h"
#include "present/screen/display.h"
#include "present/screen/fconsole.h"
#include "shell/bandspage.h"
#include "shell/ftip.h"
#include "shell/menucontrols.h"
#include "shell/menulayout.h"
#include "shell/newgamepage.h"
#include "shell/scorespage.h"
#include "shell/storepage.h"
#include "storage/files/scrambledfiles.h"
#include "storage/files/textchannels.h"
#include "storage/playerfiles.h"
#include "storage/progress.h"
#include "storage/scores.h"
#include "storage/store.h"
#include "tests/fakes/random.h"
#include "tests/fakes/toolkit.h"

// One reader of the game's files, chosen by FUZZ_READER, under arbitrary bytes. The first byte of
// an input tells whether the others are the plain file or the scrambled one. A reader may raise
// RuntimeError, one of a player's file nothing at all; it leaves no temp file and no channel open,
// and what it has read comes out the same after a save.
namespace {

using namespace glonks;
namespace fs = std::filesystem;

void require(bool holds, const char* what) {
  if (holds) return;
  std::cerr << "broken: " << what << '\n';
  std::abort();
}

void readScores() {
  loadScores();
  const auto table = highScores;
  saveScores();
  loadScores();
  for (std::size_t i = 0; i < table.size(); ++i) {
    require(table[i].points == highScores[i].points, "points come back");
    require(table[i].playerName == highScores[i].playerName, "names come back");
  }
  require(scores_freestyle.items.size() == table.size(), "ten rows");
}

void readStore() {
  const auto state = [] {
    std::string text = themeName;
    for (const i32 number : {i32{bank}, notesCollected, i32{musicVolume}, i32{storeFlagA},
                             i32{storeFlagB}, i32{storeFlagC}}) {
      text += ' ' + std::to_string(number);
    }
    for (const i16 count : itemStock) {
      require(count >= 0, "stock");
      text += ' ' + std::to_string(count);
    }
    return text;
  };
  loadStore();
  require(bank >= 0 && notesCollected >= 0 && musicVolume >= 0 && musicVolume <= loudest, "ranges");
  const std::string before = state();
  saveStore();
  loadStore();
  require(state() == before, "the store comes back");
}

void readLevelList() {
  setText(tMode, "Arcade");
  require(!tLevels.items.empty(), "a level to play");
  const auto before = tLevels.items;
  rewardLevelName = "Reward";
  rewardLevelFile = 3102;
  awardLevel();
  setText(tMode, "Arcade");
  require(tLevels.items.size() >= before.size(), "no level is lost");
}

void readBandList() {
  clearItems(allBands);
  readBands();
  require(bandNames.size() == bandLinks.size() && allBands.items.size() == bandNames.size(),
          "as many links as names");
}

void readTipFile() {
  require(!pickTip().empty() || !fs::is_empty(nativePath("\\init\\1182")), "tip");
}

void readPieceFile() {
  const Piece piece = loadPiece("1281");
  require(piece.surface != nullptr || piece.name == "BType" || piece.name == "Pin", "a picture");
}

void readLevelFile() {
  for (const Flag arcade : {False, True}) {
    try {
      loadLevel("\\levels\\2193", arcade);
      require(spawnInterval > 0, "a pace");
    } catch (const RuntimeError&) {
    }
  }
}

std::string bytesOf(const std::string& path) {
  std::ifstream file(nativePath(path), std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

// Whatever line ends the lines hold, they are the file's own after one turn.
void readLines() {
  unscrambleFile("\\init\\1182", "\\plain");
  std::string before;
  for (i32 turn = 0; turn < 2; ++turn) {
    before = bytesOf("\\plain");
    scrambleFile("\\plain", "\\again");
    unscrambleFile("\\again", "\\plain");
  }
  require(bytesOf("\\plain") == before, "the lines come back");
}

struct Reader {
  std::string name;
  std::string path;
  void (*read)();
  bool raisesNothing;
};
const Reader readers[] = {{"piece", "\\init\\1281", readPieceFile, false},
                          {"level", "\\levels\\2193", readLevelFile, false},
                          {"scores", "\\init\\6095", readScores, true},
                          {"store", "\\init\\6702", readStore, true},
                          {"levellist", "\\init\\6537", readLevelList, true},
                          {"bands", "\\init\\6859", readBandList, false},
                          {"tips", "\\init\\1182", readTipFile, true},
                          {"lines", "\\init\\1182", readLines, false}};

const Reader& chosenReader() {
  for (const Reader& reader : readers) {
    if (reader.name == FUZZ_READER) return reader;
  }
  std::abort();
}

// A folder in memory, since every run writes files.
const fs::path folder = fs::path("/dev/shm") / ("glonks.fuzz." + std::to_string(getpid()));

void removeFolder() { fs::remove_all(folder); }

void removePutAside() {
  for (const auto& entry : fs::directory_iterator(folder / "init")) {
    if (entry.path().filename().string().find(".damaged") != std::string::npos) fs::remove(entry);
  }
}

void put(const std::string& path, const char* bytes, std::size_t size) {
  std::ofstream(nativePath(path), std::ios::binary)
      .write(bytes, static_cast<std::streamsize>(size));
}

void setUp() {
  fs::create_directories(folder);
  std::atexit(removeFolder);
  for (const char* part : {"init", "levels", "first"}) {
    fs::copy(fs::path(GLONKS_GAME_FOLDER) / part, folder / part, fs::copy_options::recursive);
  }
  for (const char* part : {"images", "sounds", "themes"}) {
    fs::create_directory_symlink(fs::path(GLONKS_GAME_FOLDER) / part, folder / part);
  }
  setProgramFolder(folder);
  fake::useGenerator();
  makeKeys(keySeed, keyDrawArgument, keyScale);
  layOutMenu();
  popModes();
  if (FUZZ_READER == std::string("piece") || FUZZ_READER == std::string("level")) {
    fConsole_Show(nullptr, nullptr);
    initDX();
    initVariables();
    loadPieces();
  }
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/) {
  setUp();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const Reader& reader = chosenReader();
  const char* bytes = reinterpret_cast<const char*>(data) + 1;
  try {
    if (data[0] % 2 == 0) {
      put("\\plain", bytes, size - 1);
      scrambleFile("\\plain", reader.path);
    } else {
      put(reader.path, bytes, size - 1);
    }
  } catch (const RuntimeError&) {
    return 0;  // a line that is too long
  }
  try {
    reader.read();
  } catch (const RuntimeError&) {
    require(!reader.raisesNothing, "a player's file is never in the way");
  }
  require(!fs::exists(nativePath(tempPath)), "no temp file is left");
  for (const i16 channel : {3, 4, 5, 7, 24, 25}) require(!isChannelOpen(channel), "all closed");
  removePutAside();
  fake::resetToolkit();
  return 0;
}
