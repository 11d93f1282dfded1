#include <fcntl.h>
#include <unistd.h>

#include "storage/files/disk.h"

namespace glonks {
namespace {

// Makes a rename last through a power failure.
void flushFolder(const std::filesystem::path& folder) {
  const int handle = open(folder.c_str(), O_RDONLY | O_DIRECTORY);
  if (handle < 0) return;
  fsync(handle);
  close(handle);
}

}  // namespace

std::FILE* openFile(const std::filesystem::path& path, const char* mode) {
  return std::fopen(path.c_str(), mode);
}

bool flushToDisk(std::FILE* file) { return fsync(fileno(file)) == 0; }

std::error_code replaceFile(const std::filesystem::path& target,
                            const std::filesystem::path& replacement) {
  std::error_code error;
  std::filesystem::rename(replacement, target, error);
  if (!error) flushFolder(target.parent_path());
  return error;
}

}  // namespace glonks
