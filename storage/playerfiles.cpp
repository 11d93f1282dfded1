#include "storage/playerfiles.h"

#include <filesystem>
#include <utility>

#include "base/errors.h"
#include "base/paths.h"
#include "base/text.h"
#include "storage/files/scrambledfiles.h"
#include "storage/files/textchannels.h"

namespace glonks {
namespace {

namespace fs = std::filesystem;

std::string news;  // about files made anew, that the player hasn't been told yet

void readOnce(const PlayersFile& file, const std::function<void()>& read) {
  ScrambledReader reader(pathOf(file), playersChannel);
  read();
  reader.close();
}

// Whether an error is about what a file holds, not about the disk or the program.
bool isDamage(const RuntimeError& error) {
  for (const ErrorNumber number :
       {ErrorNumber::fileNotFound, ErrorNumber::inputPastEnd, ErrorNumber::badFile,
        ErrorNumber::overflow, ErrorNumber::typeMismatch}) {
    if (error.number() == static_cast<int>(number)) return true;
  }
  return false;
}

// A path for a damaged file that takes no other one's place.
std::string pathAside(const std::string& path) {
  std::string aside = path + ".damaged";
  for (i32 next = 2; fs::exists(nativePath(aside)); ++next) {
    aside = path + ".damaged" + std::to_string(next);
  }
  return aside;
}

// Gives a sentence that says what became of it.
std::string putAside(const std::string& path) {
  if (!fs::exists(nativePath(path))) return "is missing.";
  const std::string aside = pathAside(path);
  std::error_code error;
  fs::rename(nativePath(path), nativePath(aside), error);
  if (error) {
    throw RuntimeError(
        ErrorNumber::fileAccess,
        "The file \"" + path + "\" is damaged and can't be put aside (" + error.message() + ").");
  }
  return "is damaged.  It is kept as \"" + aside + "\".";
}

void makeAnew(const PlayersFile& file) {
  const std::string path = pathOf(file);
  const std::string fate = putAside(path);
  copyScrambledFile(firstContentsOf(file), path);
  if (!news.empty()) news += "\n\n";
  news += "The file \"" + path + "\" with " + file.holds + " " + fate +
          "  A new one was made with what the game begins with.";
}

}  // namespace

std::string storableText(std::string text) {
  for (char& c : text) {
    const auto code = static_cast<unsigned char>(c);
    if (c == ',') c = ';';
    if (c == '"') c = '\'';
    if (code < ' ' || code == 127) c = ' ';
  }
  return trimmed(trimmed(text).substr(0, longestStoredText));
}

std::string pathOf(const PlayersFile& file) { return std::string("\\init\\") + file.name; }

std::string firstContentsOf(const PlayersFile& file) {
  return std::string("\\first\\") + file.name;
}

void readPlayersFile(const PlayersFile& file, const std::function<void()>& read) {
  try {
    return readOnce(file, read);
  } catch (const RuntimeError& error) {
    if (!isDamage(error)) throw;
  }
  makeAnew(file);
  readOnce(file, read);
}

void writePlayersFile(const PlayersFile& file, const std::function<void()>& write) {
  ScrambledWriter writer(pathOf(file));
  write();
  writer.close();
}

std::string takeNews() { return std::exchange(news, ""); }

}  // namespace glonks
