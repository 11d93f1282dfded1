#pragma once

#include <functional>
#include <string>

#include "base/types.h"

// The files in "\init\" that belong to the player. None of them is ever lost: one that is damaged
// is put aside as "<name>.damaged", and the player is told.
namespace glonks {

struct PlayersFile {
  const char* name;   // in "\init\"
  const char* holds;  // what a player would call its contents
};
inline constexpr PlayersFile scoresFile{"6095", "the high scores"};
inline constexpr PlayersFile storeFile{"6702", "the bank, the goods and the settings"};
inline constexpr PlayersFile levelsFile{"6537", "the open Arcade levels"};

// The channel on which all of them are read.
inline constexpr i16 playersChannel = 4;

// A text as a field of these files can hold it, and as it comes back when read: a comma becomes a
// semicolon, a double quote an apostrophe, a control character a blank, and at its ends it has no
// blanks. What is longer than longestStoredText is cut off.
std::string storableText(std::string text);
inline constexpr i32 longestStoredText = 40;  // characters

// The path of a player's file, and of its first contents, which come with the game.
std::string pathOf(const PlayersFile& file);
std::string firstContentsOf(const PlayersFile& file);

// Opens the plain form of a file on playersChannel and runs `read`. If the file is missing, or
// damaged as `read` or the opening tells by a RuntimeError, it is made anew from its first contents
// and `read` runs again; what that raises comes out, and so does any failure to write.
void readPlayersFile(const PlayersFile& file, const std::function<void()>& read);

// Runs `write`, which writes plain lines on channel 4, and replaces the file by them. Raises
// fileAccess if that fails; the old file stands then.
void writePlayersFile(const PlayersFile& file, const std::function<void()>& write);

// What the player has to be told of files that were made anew since the last call; empty if
// nothing.
std::string takeNews();

}  // namespace glonks
