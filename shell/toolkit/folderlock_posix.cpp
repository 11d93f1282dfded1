#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>

#include "shell/toolkit/folderlock.h"

namespace glonks {

bool canWriteTo(const std::filesystem::path& folder) {
  return access(folder.c_str(), W_OK | X_OK) == 0;
}

FolderHold holdFolder(const std::filesystem::path& folder) {
  // First, because the lock file of an earlier run can be opened in a read-only folder too.
  if (!canWriteTo(folder)) return FolderHold::notWritable;
  const std::filesystem::path path = folder / "glonks.lock";
  int file = open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
  if (file < 0) file = open(path.c_str(), O_RDONLY | O_CLOEXEC);  // another user's
  if (file < 0) return FolderHold::notWritable;
  // Stays open until the process ends. Where the file system has no locks, playing without one is
  // better than not playing.
  const bool taken = flock(file, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
  return taken ? FolderHold::otherRun : FolderHold::held;
}

}  // namespace glonks
