#include "storage/folders.h"

#include "base/errors.h"
#include "base/paths.h"
#include "storage/files/log.h"
#include "storage/files/scrambledfiles.h"
#include "storage/playerfiles.h"

namespace glonks {
namespace {

namespace fs = std::filesystem;

constexpr const PlayersFile* playersFiles[] = {&scoresFile, &storeFile, &levelsFile};

std::vector<std::string> ownedPaths() {
  std::vector<std::string> owned = {logPath, tempPath};
  for (const PlayersFile* file : playersFiles) owned.push_back(pathOf(*file));
  return owned;
}

}  // namespace

void setFolders(const fs::path& program, const fs::path& users, bool (*canWrite)(const fs::path&)) {
  std::error_code ignored;
  const bool portable = fs::is_directory(program / "first", ignored);
  setProgramFolder(portable ? program : program.parent_path() / "share" / "games" / "glonks");
  if (!portable || !canWrite(program)) setPlayersFolder(users, ownedPaths());
}

void makeFirstFiles() {
  const fs::path init = playersFolder() / "init";
  std::error_code error;
  if (playersFolder() == programFolder() || fs::exists(init, error)) return;
  // Under another name until it is whole: a start that breaks off here is tried again as a whole.
  const fs::path beside = playersFolder() / "init.new";
  if (!error) fs::remove_all(beside, error);
  if (!error) fs::create_directory(beside, error);
  for (const PlayersFile* file : playersFiles) {
    if (!error) fs::copy_file(nativePath(firstContentsOf(*file)), beside / file->name, error);
  }
  if (!error) fs::rename(beside, init, error);
  if (!error) return;
  throw RuntimeError(ErrorNumber::fileAccess, "The folder \"" + init.string() +
                                                  "\" can't be made from the first contents (" +
                                                  error.message() + ").");
}

}  // namespace glonks
