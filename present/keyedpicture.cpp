#include "present/keyedpicture.h"

#include "present/display.h"

namespace glonks {

Surface loadKeyedPicture(const std::string& name, SurfaceDesc& desc) {
  Surface picture = dd->CreateSurfaceFromFile("\\images\\" + name + ".bmp", desc);
  picture->SetColorKey(sourceBlitKey, colorKey);
  return picture;
}

}  // namespace glonks
