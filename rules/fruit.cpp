#include "rules/fruit.h"

namespace glonks {

// Fruit isn't built yet.
void fruitize() {}

}  // namespace glonks
