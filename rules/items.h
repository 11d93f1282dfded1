#pragma once

#include <string>

// What the goods of the stock do once one has been taken off it.
namespace glonks {

// Drops a piece of this name into a column drawn. Raises badFile if the catalogue has no such
// piece.
void dropItem(const std::string& name);

// The Detonator: every Bomb at rest goes off at the next scan of the board.
void detonate();

}  // namespace glonks
