#include "present/screen/keyedpicture.h"

#include "present/screen/display.h"

namespace glonks {

Surface loadKeyedPicture(const std::string& name, SurfaceDesc& desc) {
  Surface picture = dd->CreateSurfaceFromFile("\\images\\" + name + ".bmp", desc);
  picture->SetColorKey(sourceBlitKey, colorKey);
  return picture;
}

}  // namespace glonks
