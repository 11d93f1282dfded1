#pragma once

namespace glonks {

// Fills the choice of themes, selects the stored one, and reads the list of bands.
void popThemes();

}  // namespace glonks
