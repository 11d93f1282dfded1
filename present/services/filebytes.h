#pragma once

#include <string>
#include <vector>

// Inside the services: files that are read whole.
namespace glonks {

// All bytes of a file. Naming the file, raises fileNotFound if it can't be opened, and badFile if
// it is empty, larger than 64 MB, or a folder, device or pipe.
std::vector<unsigned char> fileBytes(const std::string& path);

}  // namespace glonks
