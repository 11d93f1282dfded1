#pragma once

#include <string>

namespace glonks {

// Whether a text comes before another in a sorted list (both Windows-1252). They are compared as
// people sort, and the same on every machine: case and accents don't separate words, and numbers
// go by their value.
bool sortsBefore(const std::string& text, const std::string& other);

}  // namespace glonks
