#pragma once

#include "base/types.h"

// Inside the services: the picture in the game's window.
namespace glonks {

// Makes the window able to show pictures of the given size, scaled and letterboxed to whatever size
// the window has. Raises serviceFailed.
void openScreen(i32 handle, i32 width, i32 height);
void closeScreen();

// Shows a picture of the size given to openScreen, rows from the top, pixels 0x00RRGGBB. Waits so
// that two pictures are never less than 16 ms apart. With a graphics processor the picture goes up
// as one texture. Without one, only the parts that differ from the picture before are scaled and
// sent, which is what makes 40 pictures a second cheap there. Raises serviceFailed.
void showPicture(const u32* pixels);

// The window's content is lost or its size has changed: shows the last picture again, whole and at
// once. Does nothing while no screen is open. Raises serviceFailed.
void repaintScreen();

}  // namespace glonks
