#pragma once

#include "base/types.h"

// Inside the services: the picture in the game's window.
namespace glonks {

// Makes the window able to show pictures of the given logical size, letterboxed to whatever size
// the window has. Raises serviceFailed.
void openScreen(i32 handle, i32 width, i32 height);
void closeScreen();

// The pixels to a logical one, each way, with which a picture fills the window as far as it can: at
// most 2, or 1.5 without a graphics processor, which keeps a frame's cost within bounds; larger
// windows scale the picture. A window that changes its size keeps the scale until it has stood
// still for 200 ms. 1 while no screen is open.
double screenScale();

// Shows a picture of any size, rows from the top, pixels 0x00RRGGBB, scaled if it doesn't fit the
// window exactly. Waits so that two pictures are never less than 16 ms apart. With a graphics
// processor the picture goes up as one texture. Without one, only the parts that differ from the
// picture before are sent, which is what makes 40 pictures a second cheap there. Raises
// serviceFailed.
void showPicture(const u32* pixels, i32 width, i32 height);

// The window's content is lost or its size has changed: shows the last picture again, whole and at
// once. Does nothing while no screen is open. Raises serviceFailed.
void repaintScreen();

}  // namespace glonks
