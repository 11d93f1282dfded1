#pragma once

#include "base/types.h"

// Inside the services: the picture in the game's window, and its input as the window has seen it.
namespace glonks {

inline constexpr i32 keyCount = 256;  // DirectInput scan codes

// Makes the window able to show pictures of the given size, scaled and letterboxed to whatever size
// the window has. Raises serviceFailed.
void openScreen(i32 handle, i32 width, i32 height);
void closeScreen();

// Shows a picture of the size given to openScreen, rows from the top, pixels 0x00RRGGBB. Waits so
// that two pictures are never less than the time between two refreshes of a 60 Hz display apart.
// With a graphics processor the picture goes up as one texture. Without one, only the parts that
// differ from the picture before are scaled and sent, which is what makes 40 pictures a second
// cheap there.
void showPicture(const u32* pixels);

// The window's content is gone: the next picture is painted whole.
void repaintScreen();

// True while the window lacks the keyboard's focus or is minimised.
bool screenLost();

// One byte per scan code, 0x80 while the key is down.
const unsigned char* keyTable();

}  // namespace glonks
