#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>

#include "tests/system.h"

namespace glonks {

long processNumber() { return getpid(); }

void setVariable(const std::string& name, const std::string& value) {
  setenv(name.c_str(), value.c_str(), 1);
}

bool makePipe(const std::filesystem::path& place) { return mkfifo(place.c_str(), 0600) == 0; }

}  // namespace glonks
