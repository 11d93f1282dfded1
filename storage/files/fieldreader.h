#pragma once

#include <string>

#include "base/types.h"

// Fields of an open text channel as values. A number is taken from the leading numeric part of the
// field, 0 if there is none, and rounded to the nearest integer, halves to even. All raise
// inputPastEnd where the file ends, and overflow where the number doesn't fit, naming file and
// field.
namespace glonks {

i16 readI16(i16 channel, const std::string& fieldName);
i32 readI32(i16 channel, const std::string& fieldName);

// True for any number but 0.
Flag readFlag(i16 channel, const std::string& fieldName);

// The floor of a field that has to be a number as a whole; any other text raises typeMismatch.
i16 readWholeI16(i16 channel, const std::string& fieldName);
i32 readWholeI32(i16 channel, const std::string& fieldName);

// What readI16 does with a number, for one that has been read already.
i16 fittingI16(i16 channel, const std::string& fieldName, double number);

// Raises badFile for the channel's file: what is wrong with the field.
[[noreturn]] void badField(i16 channel, const std::string& fieldName, const std::string& trouble);

}  // namespace glonks
