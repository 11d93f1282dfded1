#pragma once

#include <functional>

#include "storage/playerfiles.h"

// How the menu stores what the player owns, and what it tells the player about that. A write that
// fails ends nothing: what couldn't be stored stays in memory, its file is owed, and later saves
// try again.
namespace glonks {

// From now on a file isn't up to date.
void owe(const PlayersFile& file);
bool isOwed(const PlayersFile& file);

// Stores one file. When that fails, the player may have it tried again; if not, a line goes to the
// log and the file stays owed.
void save(const PlayersFile& file);

// The same for all files that are owed, except those that the player has given up since the last
// call.
void saveAll();

// Stores all files that are owed and asks nothing; a failure goes to the log.
void saveSilently();

// Informs the player, in one message, about all files that were replaced since the last call.
void tellOfNewFiles();

// Runs an action that may fail: then a line goes to the log, the player sees a message, and it
// returns false.
bool succeeds(const std::function<void()>& action);

}  // namespace glonks
