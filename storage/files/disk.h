#pragma once

#include <cstdio>
#include <filesystem>
#include <system_error>

// What the text channels need of the disk that standard C++ hasn't got on every system.
namespace glonks {

// As std::fopen, for a path with any letters. Null, and errno set, if it fails.
std::FILE* openFile(const std::filesystem::path& path, const char* mode);

// Has the system write what a file contains to the disk. False, and errno set, if it fails.
bool flushToDisk(std::FILE* file);

// Puts a file in the place of another, or where none is, in one step that lasts through a power
// failure: whatever happens, one of the two is at `target`, whole.
std::error_code replaceFile(const std::filesystem::path& target,
                            const std::filesystem::path& replacement);

}  // namespace glonks
