#include "game/text.h"

#include <gtest/gtest.h>

#include <locale>

namespace glonks {
namespace {

TEST(Text, GoesToUtf8AndBackForAllCodes) {
  std::string high;
  for (int code = 0x80; code <= 0x9F; ++code) high += static_cast<char>(code);
  EXPECT_EQ(toUtf8(high), "€\u0081‚ƒ„…†‡ˆ‰Š‹Œ\u008DŽ\u008F\u0090‘’“”•–—˜™š›œ\u009DžŸ");
  EXPECT_EQ(toUtf8("A~\n \xA0\xBF\xC0\xE9\xFF"), "A~\n \u00A0¿Àéÿ");
  for (int code = 0; code < 256; ++code) {
    const std::string one(1, static_cast<char>(code));
    EXPECT_EQ(fromUtf8(toUtf8(one)), one) << "code " << code;
  }
}

TEST(Text, WhatTheSetDoesNotHaveBecomesAQuestionMark) {
  const std::pair<const char*, const char*> table[] = {
      {"aĀ漢😀\u0080z", "a????z"},   // other letters, and a code that the set gives to another
      {"a\x80\xFFz", "a??z"},       // bytes that start nothing
      {"a\xE2\x82", "a??"},         // cut off at the end,
      {"\xC3(\xE2\x82z", "?(??z"},  // and by a letter
      {"\xF4\x90\x80\x80z", "?z"},  // beyond the last character
      {"\xC1\xAF", "?"},            // too long a form
  };
  for (const auto& [utf8, text] : table) EXPECT_EQ(fromUtf8(utf8), text);
}

struct DecimalComma : std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
};

TEST(Text, NumbersAreReadFromTheLeadingPartInAnyLocale) {
  const struct {
    const char* text;
    double number;
    bool whole;  // the text is a number and nothing else
  } table[] = {
      {"12", 12, true},     {"-3.25", -3.25, true}, {"+5", 5, true},      {".5", 0.5, true},
      {"7.", 7, true},      {"1e3", 1000, true},    {"1E-2", 0.01, true}, {" \t4 ", 4, true},
      {"12abc", 12, false}, {"1e", 1, false},       {"1e+x", 1, false},   {"1.2.3", 1.2, false},
      {"1,5", 1, false},    {"0x10", 0, false},     {"abc", 0, false},    {"", 0, false},
      {"-", 0, false},      {".", 0, false},        {"inf", 0, false},    {"1 2", 1, false},
  };
  const std::locale before =
      std::locale::global(std::locale(std::locale::classic(), new DecimalComma));
  for (const auto& row : table) {
    EXPECT_DOUBLE_EQ(leadingNumber(row.text), row.number) << '"' << row.text << '"';
    EXPECT_EQ(isNumber(row.text), row.whole) << '"' << row.text << '"';
  }
  std::locale::global(before);
  EXPECT_LT(leadingNumber("-1e999"), -1e300);
  EXPECT_EQ(signedNumber(0) + signedNumber(-1234567), " 0-1234567");
}

}  // namespace
}  // namespace glonks
