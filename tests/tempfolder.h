#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "base/errors.h"
#include "base/paths.h"

namespace glonks {

// A folder of its own for one test, made the program's folder and deleted at the end. It has all
// that the game reads, by links, and the player's files as they are at first; tests that write
// other data files begin with ownDataFolders.
class TempFolder : public ::testing::Test {
 protected:
  TempFolder() {
    namespace fs = std::filesystem;
    const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
    std::string name = std::string(info->test_suite_name()) + "." + info->name();
    for (char& c : name) c = c == '/' ? '_' : c;
    folder = fs::temp_directory_path() / ("glonks." + std::to_string(getpid()) + "." + name);
    fs::remove_all(folder);
    fs::create_directories(folder);
    const fs::path game = GLONKS_GAME_FOLDER;
    for (const char* part : {"images", "sounds", "music", "themes", "levels", "first"}) {
      fs::create_directory_symlink(game / part, folder / part);
    }
    ownFolderOfLinks("init");
    for (const auto& file : fs::directory_iterator(game / "first")) {
      const fs::path own = folder / "init" / file.path().filename();
      fs::remove(own);
      fs::create_symlink(file.path(), own);
    }
    setProgramFolder(folder);
  }
  ~TempFolder() override { std::filesystem::remove_all(folder); }

  // Empty folders in the place of the game's data files.
  void ownDataFolders() const {
    for (const char* part : {"init", "levels"}) {
      std::filesystem::remove_all(folder / part);
      std::filesystem::create_directory(folder / part);
    }
  }

  // Links to the single files of one of the game's folders, so that some can be taken out and
  // others put in.
  void ownFolderOfLinks(const std::string& part) const {
    namespace fs = std::filesystem;
    fs::remove_all(folder / part);
    fs::create_directory(folder / part);
    for (const auto& file : fs::directory_iterator(fs::path(GLONKS_GAME_FOLDER) / part)) {
      fs::create_symlink(file.path(), folder / part / file.path().filename());
    }
  }

  std::filesystem::path folder;
};

// Bytes of a game path, as they are.
inline std::string bytesOf(const std::string& path) {
  std::ifstream file(nativePath(path), std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}
inline void putBytes(const std::string& path, const std::string& bytes) {
  std::ofstream(nativePath(path), std::ios::binary) << bytes;
}
inline bool exists(const std::string& path) { return std::filesystem::exists(nativePath(path)); }

// What the RuntimeError says that `action` raises; "no error" if it raises none.
template <typename Action>
std::string errorOf(Action action) {
  try {
    action();
  } catch (const RuntimeError& error) {
    return error.what();
  }
  return "no error";
}

// Whether a text holds another; for EXPECT_PRED2.
inline bool holds(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

}  // namespace glonks
