#include "present/effectdrawing.h"

namespace glonks {

// The effects aren't built yet, so their lists stay empty.
void drawImpacts() {}
void drawZaps() {}
void drawPopups() {}

}  // namespace glonks
