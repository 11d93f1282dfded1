#pragma once

#include <limits>
#include <string>
#include <vector>

#include "base/types.h"
#include "storage/files/datafiles.h"

// The files in "\init\" that belong to the player. None of them is ever lost: one that is damaged
// is put aside as "<name>.damaged", what can be read of it is kept, and the player is informed.
namespace glonks {

using Lines = std::vector<std::string>;

struct PlayersFile {
  const char* name;   // in "\init\" and "\first\"
  const char* holds;  // what a player would call its contents
  const char* parts;  // and what these consist of
};
inline constexpr PlayersFile scoresFile{scoresFileName, "the high scores", "scores"};
inline constexpr PlayersFile storeFile{storeFileName, "the bank, the goods and the settings",
                                       "values"};
inline constexpr PlayersFile levelsFile{levelsFileName, "the open Arcade levels", "levels"};

// What is good in the lines of a player's file.
struct Sifted {
  Lines lines;   // of a whole file: what is good, and for the rest what the game begins with
  i32 kept = 0;  // parts that are good
  i32 lost = 0;  // parts that aren't, or are missing
};

// Tells good lines from damaged ones. `first` are the lines that the game begins with; `strict` if
// the file is known to be damaged, so that only numbers which the game could have written count as
// good.
using Sift = Sifted (*)(const Lines& lines, const Lines& first, bool strict);

// A text as a field of these files can hold it, and as it comes back when read: a comma becomes a
// semicolon, a double quote an apostrophe, a control character a blank, and at its ends it has no
// blanks. What is longer than longestStoredText is cut off.
std::string storableText(std::string text);
inline constexpr i32 longestStoredText = 40;  // characters

// The path of a player's file, and of its first contents, which come with the game.
std::string pathOf(const PlayersFile& file);
std::string firstContentsOf(const PlayersFile& file);

// Whether a line, or the text of a number, can have been written by a player or the game. A wrong
// key position produces control characters (a tab doesn't count) and, in numbers, codes above
// ASCII. With `strict` a number has to be one as a whole.
bool isGoodText(const std::string& line);
bool isGoodNumber(const std::string& text, bool strict);

// The field of a line in a place counted from 0, empty if there is none: fields are separated by
// commas, have no blanks at their ends, and in double quotes keep their commas and lose the quotes.
std::string fieldOf(const std::string& line, i32 place);

// A number from its leading numeric part, 0 if there is none, rounded, halves to even, and brought
// into the range from `low` to `high`.
i32 storedNumber(const std::string& text, i32 low = std::numeric_limits<i32>::min(),
                 i32 high = std::numeric_limits<i32>::max());

// The lines of a file. One that is missing, or that holds something damaged, is replaced by what is
// good in it and by its first contents. Raises fileAccess for one that can't be read now, or can't
// be put aside or replaced, and fileNotFound, fileAccess or badFile if its first contents can't be
// read; nothing has changed then.
Lines readPlayersFile(const PlayersFile& file, Sift sift);

// Replaces a file by these lines. Raises fileAccess if that fails; the old file stands then.
void writePlayersFile(const PlayersFile& file, const Lines& lines);

// What the player has to know of files that were replaced since the last call; empty if nothing.
std::string takeNews();

}  // namespace glonks
