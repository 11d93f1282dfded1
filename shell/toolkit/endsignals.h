#pragma once

#include "shell/toolkit/controls.h"

namespace glonks {

// Sets what runs before the program ends because the system asks it to: at logging out or shutting
// down (SIGTERM; WM_ENDSESSION on Windows), with the terminal it was started from (SIGHUP), or by
// Ctrl+C there (SIGINT). It runs where events are handled, inside runEvents, a dialog or
// letFormMessagesThrough; then the program ends, by the signal if it was one. A second signal of
// the kind doesn't wait for that. A signal that the program was started to ignore stays ignored.
// The toolkit has to be started.
void setEndHandler(Handler handler);

}  // namespace glonks
