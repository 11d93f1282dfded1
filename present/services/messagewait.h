#pragma once

#include "base/types.h"

namespace glonks {

// Waits until the system has a message for the program, at most this many milliseconds, which may
// end as far into a millisecond as they have begun. True if there is one; it isn't handled yet.
bool waitForSystemMessage(i32 longest);

}  // namespace glonks
