#pragma once

namespace glonks {

// Builds the inside of fMain: its pages, and the bounds, pictures, settings and handlers of all
// controls. All pages lie at the same place; showPage decides which can be seen.
void layOutMenu();

}  // namespace glonks
