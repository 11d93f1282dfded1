#include "present/loadingscreen.h"

#include "present/screen/display.h"

namespace glonks {

Surface loadLoadingPicture() {
  SurfaceDesc desc;
  return dd->CreateSurfaceFromFile("\\images\\loading.bmp", desc);
}

void showLoadingLine(const Surface& picture, const std::string& line) {
  constexpr Rect whole{};
  constexpr i32 textPlace = 10;
  backBuffer->Blt(whole, picture, whole, bltOpaque);
  backBuffer->DrawText(textPlace, textPlace, line, False);
  primarySurface->Flip(nullptr, flipWait);
}

}  // namespace glonks
