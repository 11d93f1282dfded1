#include "rules/removal.h"

namespace glonks {

// Removal isn't built yet: until then nothing is destroyed.
void removePiece(i16 /*row*/, i16 /*column*/) {}
void explodeBomb(i16 /*row*/, i16 /*column*/) {}

}  // namespace glonks
