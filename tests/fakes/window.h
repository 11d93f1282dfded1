#pragma once

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "base/types.h"

// A window without a screen, linked in the place of the real one.
namespace glonks::fake {

inline std::array<unsigned char, 256> keys = {};  // by scan code
inline bool screenIsLost = false;
inline i32 picturesShown = 0;
inline i32 watchedX = 0;  // a place on the screen, and what the last picture showed there
inline i32 watchedY = 0;
inline u32 watchedPixel = 0;
inline bool windowOpen = false;
inline std::string windowTitle;  // as last set
inline i32 cursorShown = 1;      // the last argument of ShowCursor

// Runs at each letWindowMessagesThrough.
inline std::function<void()> windowMessages;

// The keys that are down, and a key event for them.
void pressKeys(const std::vector<i32>& scanCodes);

void resetWindow();

}  // namespace glonks::fake
