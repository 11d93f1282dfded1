#pragma once

#include <limits>
#include <vector>

#include "base/errors.h"
#include "base/types.h"

// Growing lists: an array with its upper bound beside it, -1 when the list is empty.
namespace glonks {

// Adds one blank element at the end and returns it. Raises overflow when the list is full.
template <typename Element>
Element& grow(std::vector<Element>& list, i16& upper) {
  if (upper == std::numeric_limits<i16>::max()) {
    throw RuntimeError(ErrorNumber::overflow, "A list of the game is full.");
  }
  list.emplace_back();  // first, so that the bound stands if there is no memory for it
  ++upper;
  return list.back();
}

// Keeps the elements for which `keep` holds, in their order.
template <typename Element, typename Keep>
void keepIf(std::vector<Element>& list, i16& upper, Keep keep) {
  std::erase_if(list, [&](const Element& element) { return !keep(element); });
  upper = static_cast<i16>(static_cast<i32>(list.size()) - 1);
}

// Empties the list.
template <typename Element>
void erase(std::vector<Element>& list, i16& upper) {
  list.clear();
  upper = -1;
}

}  // namespace glonks
