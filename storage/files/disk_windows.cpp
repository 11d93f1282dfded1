#include <windows.h>

#include <io.h>

#include "storage/files/disk.h"

namespace glonks {
namespace {

// Scanners and indexers open a file that has just been written, for a moment in which it can be
// neither replaced nor be a replacement.
constexpr int attempts = 50;
constexpr DWORD pause = 20;  // milliseconds between two of them: a second in all

bool isInUse(DWORD error) {
  return error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION ||
         error == ERROR_ACCESS_DENIED;
}

}  // namespace

std::FILE* openFile(const std::filesystem::path& path, const char* mode) {
  return _wfopen(path.c_str(), std::filesystem::path(mode).c_str());
}

bool flushToDisk(std::FILE* file) { return _commit(_fileno(file)) == 0; }

std::error_code replaceFile(const std::filesystem::path& target,
                            const std::filesystem::path& replacement) {
  DWORD error = 0;
  for (int attempt = 0; attempt < attempts; ++attempt) {
    if (attempt > 0) Sleep(pause);
    if (MoveFileExW(replacement.c_str(), target.c_str(),
                    MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0) {
      return {};
    }
    error = GetLastError();
    if (!isInUse(error)) break;
  }
  return {static_cast<int>(error), std::system_category()};
}

}  // namespace glonks
