#include "storage/store.h"

namespace glonks {

// The store isn't built yet: until then nothing is kept.
void loadStore() {}
void saveStore() {}

}  // namespace glonks
