#pragma once

#include <string>

namespace glonks {

// Whether a text stands before another in a sorted list (both Windows-1252). They are compared as
// people do, the same on every machine: case and accents don't part words, and numbers go by their
// value.
bool sortsBefore(const std::string& text, const std::string& other);

}  // namespace glonks
