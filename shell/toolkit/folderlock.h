#pragma once

#include <filesystem>

namespace glonks {

// Holds a folder for this run of the program alone, by a lock on its file "glonks.lock", which the
// system lets go when the process ends, however it ends. What the file holds doesn't matter. What
// hinders it, if anything:
enum class FolderHold { held, otherRun, notWritable };
FolderHold holdFolder(const std::filesystem::path& folder);

}  // namespace glonks
