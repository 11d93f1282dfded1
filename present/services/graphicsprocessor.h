#pragma once

namespace glonks {

// Whether the screen is drawn by a graphics processor. Found out once; SDL's video part has to be
// up.
bool hasGraphicsProcessor();

// Whether the system offers a device to render with. Where it doesn't, OpenGL can only be drawn in
// software, and asking it would load some 90 MB to hear that.
bool mayHaveGraphicsProcessor();

}  // namespace glonks
