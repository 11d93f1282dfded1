#include "base/text.h"

#include <array>
#include <locale>
#include <sstream>

namespace glonks {
namespace {

bool isBlank(char c) { return c == ' ' || c == '\t'; }
bool isDigit(char c) { return c >= '0' && c <= '9'; }

std::size_t skipDigits(std::string_view text, std::size_t at) {
  while (at < text.size() && isDigit(text[at])) ++at;
  return at;
}

// The end of the number that starts at `from`, or `from` if none does.
std::size_t endOfNumber(std::string_view text, std::size_t from) {
  std::size_t at = from;
  if (at < text.size() && (text[at] == '+' || text[at] == '-')) ++at;
  const std::size_t digits = at;
  at = skipDigits(text, at);
  std::size_t count = at - digits;
  if (at < text.size() && text[at] == '.') {
    const std::size_t fraction = at + 1;
    at = skipDigits(text, fraction);
    count += at - fraction;
  }
  if (count == 0) return from;
  if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
    std::size_t exponent = at + 1;
    if (exponent < text.size() && (text[exponent] == '+' || text[exponent] == '-')) ++exponent;
    const std::size_t end = skipDigits(text, exponent);
    if (end > exponent) at = end;
  }
  return at;
}

std::size_t firstNonBlank(std::string_view text) {
  std::size_t at = 0;
  while (at < text.size() && isBlank(text[at])) ++at;
  return at;
}

// Unicode of the codes 0x80 to 0x9F; all other codes stand for themselves.
constexpr std::array<char16_t, 32> highControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char32_t unicodeOf(unsigned char code) {
  return code >= 0x80 && code <= 0x9F ? highControls[code - 0x80U] : code;
}

char codeOf(char32_t unicode) {
  if (unicode < 0x80 || (unicode >= 0xA0 && unicode <= 0xFF)) return static_cast<char>(unicode);
  for (std::size_t i = 0; i < highControls.size(); ++i) {
    if (highControls[i] == unicode) return static_cast<char>(0x80 + i);
  }
  return '?';
}

// Takes one character off the front of `utf8`. What is no whole, shortest form counts as a
// character that no set has.
char32_t takeCharacter(std::string_view& utf8) {
  constexpr char32_t none = 0xFFFD;
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(utf8[i]); };
  const unsigned char lead = byte(0);
  std::size_t length = 1;
  char32_t value = lead;
  if (lead >= 0xF0 && lead < 0xF8) {
    length = 4;
    value = lead & 0x07U;
  } else if (lead >= 0xE0) {
    length = 3;
    value = lead & 0x0FU;
  } else if (lead >= 0xC0) {
    length = 2;
    value = lead & 0x1FU;
  } else if (lead >= 0x80) {
    value = none;
  }
  if (lead >= 0xF8 || length > utf8.size()) {
    length = 1;
    value = none;
  }
  for (std::size_t i = 1; i < length; ++i) {
    if ((byte(i) & 0xC0U) != 0x80U) {
      length = 1;
      value = none;
      break;
    }
    value = value << 6U | (byte(i) & 0x3FU);
  }
  constexpr std::array<char32_t, 5> least = {0, 0, 0x80, 0x800, 0x10000};
  if (value < least[length]) value = none;
  utf8.remove_prefix(length);
  return value;
}

void appendUtf8(std::string& utf8, char32_t unicode) {
  if (unicode < 0x80) {
    utf8 += static_cast<char>(unicode);
  } else if (unicode < 0x800) {
    utf8 += static_cast<char>(0xC0U | unicode >> 6U);
    utf8 += static_cast<char>(0x80U | (unicode & 0x3FU));
  } else {
    utf8 += static_cast<char>(0xE0U | unicode >> 12U);
    utf8 += static_cast<char>(0x80U | (unicode >> 6U & 0x3FU));
    utf8 += static_cast<char>(0x80U | (unicode & 0x3FU));
  }
}

}  // namespace

bool isControl(char c) { return (c >= 0 && c < ' ') || c == 127; }

bool isPrintableAscii(char c) { return c >= ' ' && c < 127; }

std::string trimmed(std::string_view text) {
  text.remove_prefix(firstNonBlank(text));
  while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
  return std::string(text);
}

double leadingNumber(std::string_view text) {
  const std::size_t from = firstNonBlank(text);
  const std::size_t end = endOfNumber(text, from);
  if (end == from) return 0;
  std::istringstream number(std::string(text.substr(from, end - from)));
  number.imbue(std::locale::classic());
  double value = 0;
  number >> value;  // the largest double if out of range
  return value;
}

bool isNumber(std::string_view text) {
  const std::string number = trimmed(text);
  return !number.empty() && endOfNumber(number, 0) == number.size();
}

std::string plainNumber(i64 number) { return std::to_string(number); }

std::string signedNumber(i64 number) { return (number < 0 ? "" : " ") + plainNumber(number); }

std::string toUtf8(std::string_view text) {
  std::string utf8;
  for (const char c : text) appendUtf8(utf8, unicodeOf(static_cast<unsigned char>(c)));
  return utf8;
}

std::string fromUtf8(std::string_view utf8) {
  std::string text;
  while (!utf8.empty()) text += codeOf(takeCharacter(utf8));
  return text;
}

}  // namespace glonks
