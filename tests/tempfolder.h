#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <string>

#include "base/errors.h"
#include "base/paths.h"
#include "storage/files/scrambledfiles.h"

namespace glonks {

// Makes a symbolic link. False where the system has none.
inline bool makeLink(const std::filesystem::path& target, const std::filesystem::path& place) {
  std::error_code error;
  std::filesystem::create_symlink(target, place, error);
  return !error;
}

// A folder of its own for one test, made the program's folder and deleted at the end. It has all
// that the game reads, by links or as copies, and the player's files as they are at first; tests
// that write level files begin with ownFolderOfLinks.
class TempFolder : public ::testing::Test {
 protected:
  TempFolder() {
    namespace fs = std::filesystem;
    static const std::string ofThisRun = std::to_string(std::random_device()());
    folder = fs::temp_directory_path() / ("glonks." + ofThisRun);
    fs::remove_all(folder);
    fs::create_directories(folder);
    for (const char* part : {"images", "sounds", "music", "themes", "levels", "first"}) {
      link(gameFolder / part, folder / part);
    }
    fs::copy(gameFolder / "init", folder / "init");
    fs::copy(gameFolder / "first", folder / "init",
             fs::copy_options::overwrite_existing | fs::copy_options::recursive);
    setProgramFolder(folder);
  }
  ~TempFolder() override { std::filesystem::remove_all(folder); }

  // Links to the single files of one of the game's folders, so that some can be taken out and
  // others put in.
  void ownFolderOfLinks(const std::string& part) const {
    std::filesystem::remove_all(folder / part);
    std::filesystem::create_directory(folder / part);
    for (const auto& file : std::filesystem::directory_iterator(gameFolder / part)) {
      link(file.path(), folder / part / file.path().filename());
    }
  }

  // A link to a file or folder, or in its place a folder with second names of the files.
  static void link(const std::filesystem::path& target, const std::filesystem::path& place) {
    using Options = std::filesystem::copy_options;
    if (!makeLink(target, place))
      copy(target, place, Options::recursive | Options::create_hard_links);
  }

  const std::filesystem::path gameFolder = GLONKS_GAME_FOLDER;
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
// A data file, by its plain bytes.
inline void putScrambled(const std::string& path, const std::string& plain) {
  putBytes("\\plain", plain);
  scrambleFile("\\plain", path);
}
inline bool exists(const std::string& path) { return std::filesystem::exists(nativePath(path)); }

// What the RuntimeError says that `action` raises; "no error" if it raises none.
std::string errorOf(const auto& action) {
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
