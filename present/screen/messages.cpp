#include "present/screen/messages.h"

#include "present/services/window.h"
#include "shell/toolkit/toolkit.h"

namespace glonks {

void letMessagesThrough(u32 until) {
  letFormMessagesThrough();
  letWindowMessagesThrough(until);
}

}  // namespace glonks
