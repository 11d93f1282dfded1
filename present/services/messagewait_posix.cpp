#include <SDL.h>

#include "present/services/messagewait.h"

namespace glonks {

bool waitForSystemMessage(i32 longest) { return SDL_WaitEventTimeout(nullptr, longest) != 0; }

}  // namespace glonks
