#pragma once

#include <string>

#include "game/loading/levels.h"

namespace glonks {

// The goals of a level in sentences, two blanks between them, in the order in which a game shows
// them. Goals that are off, or reached before the first piece falls, are left out; empty if that
// leaves none.
std::string goalWords(const LevelHead& head);

}  // namespace glonks
