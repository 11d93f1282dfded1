#include "present/applause.h"

namespace glonks {

// The applause isn't built yet.
void applause() {}

}  // namespace glonks
