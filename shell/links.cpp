#include "shell/links.h"

#include "shell/toolkit/toolkit.h"

namespace glonks {

void openLink(const std::string& address) { openBySystem(address); }

}  // namespace glonks
