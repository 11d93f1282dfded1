#include "present/services/graphicsprocessor.h"

namespace glonks {

// Asking is cheap: OpenGL is part of the system, and a driver is loaded only where there is one.
bool mayHaveGraphicsProcessor() { return true; }

}  // namespace glonks
