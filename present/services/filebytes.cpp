#include "present/services/filebytes.h"

#include <cerrno>
#include <filesystem>
#include <fstream>

#include "base/paths.h"
#include "present/services/failure.h"

namespace glonks {

std::vector<unsigned char> fileBytes(const std::string& path) {
  constexpr std::uintmax_t most = 64U << 20U;
  const std::filesystem::path place = nativePath(path);
  const std::string unopened = "The file \"" + path + "\" can't be opened";
  std::error_code error;
  if (!isRegularFile(place) && std::filesystem::exists(place, error)) {
    fail(ErrorNumber::fileAccess, unopened, "it is no regular file");
  }
  const std::uintmax_t size = std::filesystem::file_size(place, error);
  std::ifstream file(place, std::ios::binary);
  if (!file && !error) error.assign(errno, std::generic_category());
  if (error) {
    const bool missing = error == std::errc::no_such_file_or_directory;
    fail(missing ? ErrorNumber::fileNotFound : ErrorNumber::fileAccess, unopened, error.message());
  }
  if (size == 0 || size > most) {
    throw RuntimeError(ErrorNumber::badFile,
                       "The file \"" + path + "\" is " + (size == 0 ? "empty." : "far too large."));
  }
  std::vector<unsigned char> bytes(size);
  file.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(size));
  if (file.gcount() != static_cast<std::streamsize>(size)) {
    throw RuntimeError(ErrorNumber::fileAccess, "The file \"" + path + "\" can't be read.");
  }
  return bytes;
}

}  // namespace glonks
