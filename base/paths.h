#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

// The game's folder and the player's, and the one way from the paths that the game uses to those of
// the system.
namespace glonks {

// Sets the folder with all that the game reads, which holds what the player owns as well. Called
// once at start.
void setProgramFolder(std::filesystem::path folder);
const std::filesystem::path& programFolder();

// Takes what the player owns out of the program's folder: from now on the game paths `owned`, and
// those that continue one of them with a point ("\init\6095.damaged"), lie in this folder.
void setPlayersFolder(std::filesystem::path folder, std::vector<std::string> owned);
// The folder with what the player owns; the program's, if they have none of their own.
const std::filesystem::path& playersFolder();

// The system's path of a game path. One that begins with a backslash ("\init\6095") lies under the
// program's folder or the player's, its backslashes separating the folders and its text in
// Windows-1252; any other is taken as it stands.
std::filesystem::path nativePath(std::string_view path);

// The game path of the file that a picture's path stands for: the PNG beside a bitmap of that name,
// or in its place, before the bitmap itself.
std::string pictureFileOf(const std::string& path);

// Whether there is a file of stored bytes at a path of the system, or a link to one: no folder,
// device or pipe, which could be read for ever or not at all.
bool isRegularFile(const std::filesystem::path& path);

}  // namespace glonks
