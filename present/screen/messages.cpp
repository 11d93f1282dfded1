#include "present/screen/messages.h"

#include "present/screen/display.h"
#include "present/services/window.h"
#include "shell/toolkit/toolkit.h"

namespace glonks {

void letMessagesThrough(u32 until) {
  letFormMessagesThrough();
  if (backBuffer) backBuffer->ComposeAhead();
  letWindowMessagesThrough(until);
}

}  // namespace glonks
