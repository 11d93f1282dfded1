#pragma once

#include <string>
#include <vector>

// Inside the services: files that are read whole.
namespace glonks {

// All bytes of a file. Naming the file, raises fileNotFound if there is none, fileAccess if it
// can't be opened or read now or is a folder, device or pipe, and badFile if it is empty or larger
// than 64 MB.
std::vector<unsigned char> fileBytes(const std::string& path);

}  // namespace glonks
