#include <windows.h>

#include <cstdlib>

#include "tests/system.h"

namespace glonks {

long processNumber() { return static_cast<long>(GetCurrentProcessId()); }

void setVariable(const std::string& name, const std::string& value) {
  _putenv_s(name.c_str(), value.c_str());
}

bool makePipe(const std::filesystem::path& /*place*/) { return false; }

}  // namespace glonks
