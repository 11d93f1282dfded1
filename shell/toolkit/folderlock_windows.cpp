#include <windows.h>

#include "shell/toolkit/folderlock.h"

namespace glonks {
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

}  // namespace glonks
