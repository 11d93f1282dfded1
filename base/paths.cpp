#include "base/paths.h"

#include <algorithm>
#include <system_error>
#include <utility>

#include "base/text.h"

namespace glonks {
namespace {
std::filesystem::path folder;
}

void setProgramFolder(std::filesystem::path programFolder) { folder = std::move(programFolder); }

const std::filesystem::path& programFolder() { return folder; }

std::filesystem::path nativePath(std::string_view path) {
  if (path.empty() || path.front() != '\\') return std::filesystem::path(path);
  std::string relative = toUtf8(path.substr(1));
  std::replace(relative.begin(), relative.end(), '\\', '/');
  return folder / std::filesystem::path(std::u8string(relative.begin(), relative.end()));
}

std::string pictureFileOf(const std::string& path) {
  const std::string png = path.substr(0, path.rfind('.')) + ".png";
  return isRegularFile(nativePath(png)) ? png : path;
}

bool isRegularFile(const std::filesystem::path& path) {
  std::error_code ignored;
  return std::filesystem::is_regular_file(path, ignored);
}

}  // namespace glonks
