#include "shell/themes.h"

namespace glonks {

// The pages for themes and bands aren't built yet.
void popThemes() {}

}  // namespace glonks
