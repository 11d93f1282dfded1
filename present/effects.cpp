#include "present/effects.h"

namespace glonks {

// The effects aren't built yet: until then nothing is raised.
void pushImpact(i16 /*x*/, i16 /*y*/, Flag /*silent*/) {}
void pushZap(i16 /*x*/, i16 /*y*/, Flag /*horizontal*/) {}
void pushPopup(i16 /*x*/, i16 /*y*/, i32 /*points*/) {}

}  // namespace glonks
