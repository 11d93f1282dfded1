#include <fontconfig/fontconfig.h>

#include <memory>

#include "present/services/failure.h"
#include "present/services/fontfile.h"

namespace glonks {

std::string fontFile(const std::string& name) {
  if (FcInit() != FcTrue) {
    fail(ErrorNumber::serviceFailed, unusableFont(name), "the list of fonts can't be read");
  }
  const std::unique_ptr<FcPattern, void (*)(FcPattern*)> wanted(FcPatternCreate(),
                                                                FcPatternDestroy);
  FcPatternAddString(wanted.get(), FC_FAMILY, reinterpret_cast<const FcChar8*>(name.c_str()));
  FcPatternAddBool(wanted.get(), FC_SCALABLE, FcTrue);
  FcConfigSubstitute(nullptr, wanted.get(), FcMatchPattern);
  FcDefaultSubstitute(wanted.get());
  FcResult result = FcResultNoMatch;
  const std::unique_ptr<FcPattern, void (*)(FcPattern*)> match(
      FcFontMatch(nullptr, wanted.get(), &result), FcPatternDestroy);
  FcChar8* file = nullptr;
  if (!match || FcPatternGetString(match.get(), FC_FILE, 0, &file) != FcResultMatch) {
    fail(ErrorNumber::serviceFailed, unusableFont(name), "the system has no font");
  }
  return reinterpret_cast<const char*>(file);
}

}  // namespace glonks
