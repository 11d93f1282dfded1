#include "base/paths.h"

#include <algorithm>
#include <system_error>
#include <utility>

#include "base/text.h"

namespace glonks {
namespace {

std::filesystem::path program;
std::filesystem::path players;
std::vector<std::string> playersPaths;

bool isPlayers(std::string_view path) {
  return std::any_of(playersPaths.begin(), playersPaths.end(), [path](std::string_view owned) {
    return path.starts_with(owned) && (path.size() == owned.size() || path[owned.size()] == '.');
  });
}

}  // namespace

void setProgramFolder(std::filesystem::path folder) {
  program = players = std::move(folder);
  playersPaths.clear();
}

const std::filesystem::path& programFolder() { return program; }

void setPlayersFolder(std::filesystem::path folder, std::vector<std::string> owned) {
  players = std::move(folder);
  playersPaths = std::move(owned);
}

const std::filesystem::path& playersFolder() { return players; }

std::filesystem::path nativePath(std::string_view path) {
  if (path.empty() || path.front() != '\\') return std::filesystem::path(path);
  std::string relative = toUtf8(path.substr(1));
  std::replace(relative.begin(), relative.end(), '\\', '/');
  const std::filesystem::path& folder = isPlayers(path) ? players : program;
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
