#pragma once

#include "storage/playerfiles.h"

// How the menu stores what the player owns, and what it tells of that.
namespace glonks {

// Runs `write`, which replaces a player's file. When that fails, the player is told and may have it
// tried again; if not, the failure comes out and the old file stands.
void save(const PlayersFile& file, void (*write)());

// Tells the player, in one message, of all files that were made anew since the last call.
void tellOfNewFiles();

}  // namespace glonks
