#pragma once

#include <string>
#include <vector>

#include "game/model/mode.h"

// The table of modes: a row for each, which menu, loading and drawing look at. The Play button
// takes from it whether item keys work (see modeName in game/model/model.h).
namespace glonks {

inline std::vector<Mode> modes;  // those offered, and free slots, whose titles are empty
inline i16 modesUpper = -1;      // upper bound of `modes`

// The rows that the page New Game offers, in its order: all but those that a ticket is missing for.
std::vector<Mode> offeredModes();

// The row of a title; one without title and loop if there is none.
Mode modeTitled(const std::string& title);

}  // namespace glonks
