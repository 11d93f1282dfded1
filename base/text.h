#pragma once

#include <string>
#include <string_view>

#include "base/types.h"

// Texts are strings of 8-bit codes in the Windows-1252 character set, as in the data files. These
// are the ways to numbers and to Unicode and back; none depends on the locale.
namespace glonks {

// Whether a character is a control character, or one of the 95 that ASCII can print.
bool isControl(char c);
bool isPrintableAscii(char c);

// The text without blanks and tabs at its ends.
std::string trimmed(std::string_view text);

// The leading numeric part of `text` (sign, digits, fraction, exponent; blanks before it skipped),
// 0 if there is none. One that is too large for a double counts as the largest.
double leadingNumber(std::string_view text);

// Whether the text, blanks at its ends aside, is one number and nothing else.
bool isNumber(std::string_view text);

// A number as text: plain ("12", "-3"), or signed, with a blank before one that isn't negative
// (" 12", "-3").
std::string plainNumber(i64 number);
std::string signedNumber(i64 number);

// Windows-1252 to UTF-8 and back. The five codes that the set leaves open stand for the control
// characters of the same number. What the set doesn't have, and bytes that are no UTF-8, become
// "?".
std::string toUtf8(std::string_view text);
std::string fromUtf8(std::string_view utf8);

}  // namespace glonks
