#pragma once

#include <string>
#include <vector>

#include "game/model/mode.h"

// The table of modes: a row for each, which menu, loading, drawing and keys look at.
namespace glonks {

inline std::vector<Mode> modes;  // those that can be picked, and free slots, whose titles are empty
inline i16 modesUpper = -1;      // upper bound of `modes`

// The row of a title; one without title and loop if there is none.
Mode modeTitled(const std::string& title);

}  // namespace glonks
