#pragma once

#include <filesystem>

namespace glonks {

// Whether files can be made in a folder, which has to be there.
bool canWriteTo(const std::filesystem::path& folder);

// Holds a folder for this run of the program alone, by a lock on its file "glonks.lock". The system
// releases the lock when the process ends, however it ends; what the file contains doesn't matter.
// The result says what is in the way, if anything.
enum class FolderHold { held, otherRun, notWritable };
FolderHold holdFolder(const std::filesystem::path& folder);

}  // namespace glonks
