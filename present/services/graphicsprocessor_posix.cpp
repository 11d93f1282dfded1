#include <filesystem>
#include <system_error>

#include "present/services/graphicsprocessor.h"

namespace glonks {

// By the devices that it would be asked through.
bool mayHaveGraphicsProcessor() {
  for (const char* sign : {"/dev/dri", "/dev/nvidiactl", "/dev/dxg"}) {
    std::error_code ignored;
    if (std::filesystem::exists(sign, ignored)) return true;
  }
  return false;
}

}  // namespace glonks
