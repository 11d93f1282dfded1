#pragma once

namespace glonks {

// Moves the ticker's letters by one frame and draws them on backBuffer.
void drawTicker();

}  // namespace glonks
