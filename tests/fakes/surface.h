#pragma once

#include <functional>
#include <string>
#include <vector>

#include "present/services/surface.h"

// Surfaces that write down what is drawn in the place of painting it, linked in the place of
// surfaces and display.
namespace glonks::fake {

// What has been loaded and drawn on the back buffer, in order: "load frame", "glonk_01 90x90 at
// 165,250", "plate_01 500x350 to 853x610 at 81,80 opaque", "frame whole", "Playing... at 10,10",
// "fill 0 whole", "flip".
inline std::vector<std::string> drawn;

// Runs with a picture's name before it is loaded or drawn, and with "flip" before a Flip; may
// raise.
inline std::function<void(const std::string& name)> onPicture = [](const std::string&) {};

// The name of a picture's file without folder and ending, empty for none.
std::string nameOf(const Surface& picture);

}  // namespace glonks::fake
