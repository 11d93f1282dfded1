#pragma once

#include <string>

namespace glonks {

// Drops a piece of this name, out of the stock, into a column drawn. Raises badFile if the
// catalogue has no such piece.
void dropItem(const std::string& name);

}  // namespace glonks
