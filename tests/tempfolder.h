#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "game/errors.h"
#include "storage/paths.h"

namespace glonks {

// A folder of its own for one test, made the program's folder and deleted at the end. It has all
// that the game reads, by links; tests that write data files begin with ownDataFolders.
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
    for (const char* part : {"images", "sounds", "music", "themes", "init", "levels"}) {
      fs::create_directory_symlink(fs::path(GLONKS_GAME_FOLDER) / part, folder / part);
    }
    setProgramFolder(folder);
  }
  ~TempFolder() override { std::filesystem::remove_all(folder); }

  // Empty folders in the place of the game's data files.
  void ownDataFolders() const {
    for (const char* part : {"init", "levels"}) {
      std::filesystem::remove(folder / part);
      std::filesystem::create_directory(folder / part);
    }
  }

  // Links to the single files of one of the game's folders, so that some can be taken out and
  // others put in.
  void ownFolderOfLinks(const std::string& part) const {
    namespace fs = std::filesystem;
    fs::remove(folder / part);
    fs::create_directory(folder / part);
    for (const auto& file : fs::directory_iterator(fs::path(GLONKS_GAME_FOLDER) / part)) {
      fs::create_symlink(file.path(), folder / part / file.path().filename());
    }
  }

  // Bytes of a game path, as they are.
  static std::string bytesOf(const std::string& path) {
    std::ifstream file(nativePath(path), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  }
  static void putBytes(const std::string& path, const std::string& bytes) {
    std::ofstream(nativePath(path), std::ios::binary) << bytes;
  }
  static bool exists(const std::string& path) { return std::filesystem::exists(nativePath(path)); }

  std::filesystem::path folder;
};

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
