#include <windows.h>

#include "present/services/messagewait.h"

namespace glonks {

// SDL's own wait sets a timer of the system, which takes ten milliseconds at least and ends with
// one of the 64 beats of a second, however fine the program's clock is: frames would take longer
// than the game's. This wait goes by the fine clock that SDL has asked for (one millisecond).
bool waitForSystemMessage(i32 longest) {
  return MsgWaitForMultipleObjectsEx(0, nullptr, static_cast<DWORD>(longest), QS_ALLINPUT,
                                     MWMO_INPUTAVAILABLE) == WAIT_OBJECT_0;
}

}  // namespace glonks
