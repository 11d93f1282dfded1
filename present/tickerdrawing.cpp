#include "present/tickerdrawing.h"

namespace glonks {

// The ticker isn't built yet, so its list stays empty.
void drawTicker() {}

}  // namespace glonks
