#include "rules/slamming.h"

namespace glonks {

// Slamming isn't built yet: until then Slammers lie still.
void checkSlams(const std::vector<SlammerPlace>& /*slammers*/, i16 /*upper*/) {}

}  // namespace glonks
