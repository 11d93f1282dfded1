#include "storage/playerfiles.h"

#include <algorithm>
#include <filesystem>
#include <utility>

#include "base/errors.h"
#include "base/paths.h"
#include "base/text.h"
#include "storage/files/channels.h"
#include "storage/files/salvage.h"
#include "storage/files/scrambledfiles.h"
#include "storage/files/textchannels.h"

namespace glonks {
namespace {

namespace fs = std::filesystem;

std::string news;  // of files that were replaced; the player doesn't know yet

Lines linesOf(const std::string& path) {
  Lines lines;
  ScrambledReader reader(path, playersChannel);
  while (!endOfFile(playersChannel)) lines.push_back(readLine(playersChannel));
  reader.close();
  return lines;
}

// Reads a file that has no damage; false for one that has.
bool readWhole(const PlayersFile& file, Sift sift, Lines& lines) {
  try {
    lines = linesOf(pathOf(file));
  } catch (const RuntimeError& error) {
    if (error.number() == static_cast<int>(ErrorNumber::badFile)) return false;
    throw;
  }
  return sift(lines, {}, false).lost == 0 && !isCutShort(pathOf(file));
}

// Gives the file a second name that no other one has, or failing that a copy, so that it stands in
// its own place until the new one does.
std::string putAside(const std::string& path) {
  std::error_code error;
  std::string aside = path + ".damaged";
  for (i32 next = 2; fs::exists(nativePath(aside), error); ++next) {
    aside = path + ".damaged" + plainNumber(next);
  }
  fs::create_hard_link(nativePath(path), nativePath(aside), error);
  if (error) fs::copy_file(nativePath(path), nativePath(aside), error);
  if (!error) return aside;
  throw RuntimeError(
      ErrorNumber::fileAccess,
      "The file \"" + path + "\" is damaged and can't be put aside (" + error.message() + ").");
}

// Returns where the damaged file stands now.
std::string replaceDamaged(const PlayersFile& file, const Lines& lines) {
  std::string aside = putAside(pathOf(file));
  try {
    writePlayersFile(file, lines);
  } catch (const RuntimeError&) {
    std::error_code ignored;
    fs::remove(nativePath(aside), ignored);
    throw;
  }
  return aside;
}

void addNews(const PlayersFile& file, const std::string& fate) {
  if (!news.empty()) news += "\n\n";
  news += "The file \"" + pathOf(file) + "\" with " + file.holds + " " + fate;
}

std::string fateOfDamaged(const PlayersFile& file, const Sifted& sifted, const std::string& aside) {
  const bool none = sifted.kept == 0;
  return "is damaged.  It has been put aside as \"" + aside + "\".  " +
         (none ? "None" : plainNumber(sifted.kept)) + " of its " +
         plainNumber(sifted.kept + sifted.lost) + " " + file.parts + " could be read" +
         (none ? ".  A new one was made with what" : " and kept.  The others are those that") +
         " the game begins with.";
}

Lines replaceFile(const PlayersFile& file, Sift sift, bool missing) {
  const Lines first = linesOf(firstContentsOf(file));
  const Sifted sifted = sift(missing ? Lines() : salvagedLines(pathOf(file)), first, true);
  if (missing) {
    writePlayersFile(file, sifted.lines);
    addNews(file, "is missing.  A new one was made with what the game begins with.");
  } else {
    const std::string aside = replaceDamaged(file, sifted.lines);
    addNews(file, fateOfDamaged(file, sifted, aside));
  }
  return sifted.lines;
}

}  // namespace

std::string storableText(std::string text) {
  for (char& c : text) {
    if (c == ',') c = ';';
    if (c == '"') c = '\'';
    if (isControl(c)) c = ' ';
  }
  return trimmed(trimmed(text).substr(0, longestStoredText));
}

std::string pathOf(const PlayersFile& file) { return std::string("\\init\\") + file.name; }

std::string firstContentsOf(const PlayersFile& file) {
  return std::string("\\first\\") + file.name;
}

bool isGoodText(const std::string& line) {
  return std::none_of(line.begin(), line.end(), [](char c) { return c != '\t' && isControl(c); });
}

bool isGoodNumber(const std::string& text, bool strict) {
  if (strict) return isNumber(text);
  return std::all_of(text.begin(), text.end(),
                     [](char c) { return c == '\t' || isPrintableAscii(c); });
}

std::string fieldOf(const std::string& line, i32 place) {
  std::size_t at = 0;
  for (;; --place) {
    at = std::min(line.find_first_not_of(" \t", at), line.size());
    const bool quoted = at < line.size() && line[at] == '"';
    const std::size_t from = quoted ? at + 1 : at;
    const std::size_t end = std::min(line.find(quoted ? '"' : ',', from), line.size());
    if (place == 0) {
      return quoted ? line.substr(from, end - from) : trimmed(line.substr(from, end - from));
    }
    at = line.find(',', end);
    if (at == std::string::npos) return "";
    ++at;
  }
}

i32 storedNumber(const std::string& text, i32 low, i32 high) {
  return static_cast<i32>(std::clamp<double>(roundHalfEven(leadingNumber(text)), low, high));
}

Lines readPlayersFile(const PlayersFile& file, Sift sift) {
  std::error_code error;
  const bool missing = !fs::exists(nativePath(pathOf(file)), error) && !error;
  Lines lines;
  if (!missing && readWhole(file, sift, lines)) return lines;
  return replaceFile(file, sift, missing);
}

void writePlayersFile(const PlayersFile& file, const Lines& lines) {
  ScrambledWriter writer(pathOf(file));
  for (const std::string& line : lines) writeLine(playersChannel, line);
  writer.close();
}

std::string takeNews() { return std::exchange(news, ""); }

}  // namespace glonks
