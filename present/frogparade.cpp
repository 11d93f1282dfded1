#include "present/frogparade.h"

namespace glonks {

// The parade isn't built yet.
void frogParade() {}

}  // namespace glonks
