#include "shell/toolkit/folderlock.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#endif

namespace glonks {

#ifdef _WIN32

namespace {

// Nobody else can open it until it is closed.
HANDLE openLock(const std::filesystem::path& folder) {
  return CreateFileW((folder / "glonks.lock").c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                     OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
}

}  // namespace

bool canWriteTo(const std::filesystem::path& folder) {
  const HANDLE file = openLock(folder);
  if (file == INVALID_HANDLE_VALUE) return GetLastError() == ERROR_SHARING_VIOLATION;
  CloseHandle(file);
  return true;
}

FolderHold holdFolder(const std::filesystem::path& folder) {
  // Stays open until the process ends.
  const HANDLE file = openLock(folder);
  if (file != INVALID_HANDLE_VALUE) return FolderHold::held;
  return GetLastError() == ERROR_SHARING_VIOLATION ? FolderHold::otherRun : FolderHold::notWritable;
}

#else

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

#endif

}  // namespace glonks
