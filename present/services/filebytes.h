#pragma once

#include <string>
#include <vector>

// Inside the services: files that are read whole.
namespace glonks {

// All bytes of a file. Raises fileNotFound for a file that can't be opened and badFile for an empty
// one or one of more than 64 MB, naming the file.
std::vector<unsigned char> fileBytes(const std::string& path);

}  // namespace glonks
