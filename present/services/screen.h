#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "base/types.h"
#include "present/services/raster.h"
#include "present/services/rect.h"

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

struct ShownPicture {
  std::shared_ptr<const Raster> raster;  // 0x00RRGGBB
  std::vector<Rect> changes;             // where it differs from the picture shown before
  // Gives the picture's pixels again, also when something else stands in the raster by then.
  std::function<std::shared_ptr<const Raster>()> again;
};

// Shows a picture of any size, scaled if it doesn't fit the window exactly. Waits so that two
// pictures are never less than 16 ms apart. With a graphics processor the picture goes up as one
// texture. Without one, only what has changed is sent, which is what makes 40 pictures a second
// cheap there. Raises serviceFailed.
void showPicture(const ShownPicture& picture);

// The window's content is lost or its size has changed: shows the last picture again, whole and at
// once. Does nothing while no screen is open. Raises serviceFailed.
void repaintScreen();

}  // namespace glonks
