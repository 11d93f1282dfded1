#pragma once

#include <string>

#include "base/types.h"
#include "present/services/surface.h"

// The display: surfaces to draw on, pictures from files, and the screen that shows them.
namespace glonks {

class DirectDraw7 {
 public:
  DirectDraw7() = default;
  ~DirectDraw7();
  DirectDraw7(const DirectDraw7&) = delete;
  DirectDraw7& operator=(const DirectDraw7&) = delete;

  // Binds the display to a window. `flags` 0x51: full screen, exclusive, any resolution; 8: normal,
  // which gives the screen up.
  void SetCooperativeLevel(i32 hWnd, i32 flags);

  // Takes the screen for pictures of `width` by `height` pixels; they are scaled to the screen as
  // it is, so the other three values are accepted and change nothing. Raises serviceFailed.
  void SetDisplayMode(i32 width, i32 height, i32 bits, i32 rate, i32 flags);

  // A primary surface with its back buffer, of the display mode's size. Raises serviceFailed for
  // any other description.
  Surface CreateSurface(const SurfaceDesc& desc);

  // A surface with the picture of a bitmap file, of the bitmap's own size, or of the PNG that
  // stands beside it or in its place, drawn at twice the logical size; `desc` takes the logical
  // size. Raises fileNotFound, fileAccess or badFile, naming the file.
  Surface CreateSurfaceFromFile(const std::string& path, SurfaceDesc& desc);

  // 0 while the game has the screen; another value while its window lacks the focus or is
  // minimised.
  i32 TestCooperativeLevel() const;

  // Makes all surfaces usable again after a loss. They are kept in memory, so nothing is lost.
  void RestoreAllSurfaces();

  // Gives the desktop its screen back.
  void RestoreDisplayMode();

 private:
  i32 hWnd_ = 0;
  i32 flags_ = 0;
  i32 width_ = 0;
  i32 height_ = 0;
};

}  // namespace glonks
