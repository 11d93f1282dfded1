#include "present/services/filebytes.h"

#include <filesystem>
#include <fstream>

#include "base/errors.h"
#include "base/paths.h"

namespace glonks {

std::vector<unsigned char> fileBytes(const std::string& path) {
  constexpr std::uintmax_t most = 64U << 20U;
  const std::filesystem::path place = nativePath(path);
  std::error_code error;
  if (!isRegularFile(place) && std::filesystem::exists(place, error)) {
    throw RuntimeError(ErrorNumber::badFile, "The file \"" + path + "\" is not a regular file.");
  }
  std::ifstream file(place, std::ios::binary);
  const std::uintmax_t size = std::filesystem::file_size(place, error);
  if (!file || error) {
    throw RuntimeError(ErrorNumber::fileNotFound, "The file \"" + path + "\" can't be opened.");
  }
  if (size == 0 || size > most) {
    throw RuntimeError(ErrorNumber::badFile,
                       "The file \"" + path + "\" is " + (size == 0 ? "empty." : "far too large."));
  }
  std::vector<unsigned char> bytes(size);
  file.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(size));
  if (file.gcount() != static_cast<std::streamsize>(size)) {
    throw RuntimeError(ErrorNumber::badFile, "The file \"" + path + "\" can't be read.");
  }
  return bytes;
}

}  // namespace glonks
