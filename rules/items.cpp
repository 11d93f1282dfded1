#include "rules/items.h"

namespace glonks {

// Items aren't built yet: until then nothing is dropped.
void dropItem(const std::string& /*name*/) {}

}  // namespace glonks
