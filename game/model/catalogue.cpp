#include "game/model/catalogue.h"

#include "base/errors.h"
#include "game/model/model.h"

namespace glonks {

i16 slotNamed(const std::string& name) {
  for (i16 slot = 0; slot <= pieceCatalogUpper; ++slot) {
    if (catalogEntry(slot).name == name) return slot;
  }
  throw RuntimeError(ErrorNumber::badFile, "The piece files in the folder \"\\init\" have no \"" +
                                               name + "\" in their field name.");
}

}  // namespace glonks
