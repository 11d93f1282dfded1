#pragma once

namespace glonks {

// Gives fMain its inside: pages, and the places, pictures, settings and handlers of all controls.
// All pages lie at the same place; showPage tells which can be seen.
void layOutMenu();

}  // namespace glonks
