#pragma once

#include <string>

namespace glonks {

// Where the game's makers can be found.
inline const std::string makersAddress = "https://glonks.example/";

// Asks the system to open an address, in the player's browser for a web address. Doesn't wait, and
// tells nothing if that fails.
void openLink(const std::string& address);

}  // namespace glonks
