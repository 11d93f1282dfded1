#include <windows.h>

#include <filesystem>

#include "base/paths.h"
#include "present/services/failure.h"
#include "present/services/fontfile.h"

namespace glonks {
namespace {

namespace fs = std::filesystem;

// Where the system lists the files of its fonts, by their names and kind: those for everybody, then
// the user's own. A file without a folder lies in the system's.
constexpr wchar_t list[] = L"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Fonts";
// Comes with the game, for systems that lack the font.
constexpr char ownFont[] = "\\fonts\\LiberationSerif-Regular.ttf";

fs::path systemsFonts() {
  wchar_t folder[MAX_PATH] = {};
  GetSystemWindowsDirectoryW(folder, MAX_PATH);
  return fs::path(folder) / "Fonts";
}

// Empty if the list hasn't got the name.
fs::path listed(HKEY root, const std::string& name) {
  wchar_t file[MAX_PATH] = {};
  DWORD size = sizeof file;
  const fs::path entry(name + " (TrueType)");
  if (RegGetValueW(root, list, entry.c_str(), RRF_RT_REG_SZ, nullptr, file, &size) != 0) return {};
  return systemsFonts() / file;
}

}  // namespace

std::string fontFile(const std::string& name) {
  for (const HKEY root : {HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER}) {
    const fs::path file = listed(root, name);
    if (isRegularFile(file)) return file.string();
  }
  const fs::path own = nativePath(ownFont);
  if (isRegularFile(own)) return own.string();
  fail(ErrorNumber::serviceFailed, unusableFont(name),
       "the system hasn't got it, and the game's own is missing");
}

}  // namespace glonks
