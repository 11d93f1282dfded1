#pragma once

#include <filesystem>

// Which folder holds what the game reads, and which one what the player owns: the files of
// storage/playerfiles.h, the log and the temp file. The lock file lies there too.
//
// The portable product is one folder with the program and all the rest. Installed, the program is
// <prefix>/games/glonks and its data <prefix>/share/games/glonks, so that it finds them under
// whatever prefix it is. What the player owns lies in the portable folder if that can be written,
// and in one of the player's own otherwise and for an installed game, also if it is root that
// starts it: never partly here and partly there.
namespace glonks {

// Sets both folders. `program` is the folder of the program file, `users` the player's own; whether
// a folder can be written, `canWrite` tells. Makes no folder and no file.
void setFolders(const std::filesystem::path& program, const std::filesystem::path& users,
                bool (*canWrite)(const std::filesystem::path& folder));

// At the first start with a folder of the player's own, which has to be there, makes their files in
// it from the first contents: all of them or none. Raises fileAccess if that fails.
void makeFirstFiles();

}  // namespace glonks
