#include "game/text.h"

#include <gtest/gtest.h>

#include <clocale>
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
  const struct {
    const char* name;
    std::string utf8;
    std::string text;
  } table[] = {
      {"other letters", "aĀ漢😀z", "a???z"},
      {"a control character that the set gives to another", "\u0080", "?"},
      {"a byte that starts nothing", "a\x80\xFFz", "a??z"},
      {"cut off at the end", "a\xC3", "a?"},
      {"three bytes cut off at the end", "a\xE2\x82", "a??"},
      {"cut off by a letter", "\xC3(\xE2\x82z", "?(??z"},
      {"beyond the last character", "\xF4\x90\x80\x80z", "?z"},
      {"empty", "", ""},
  };
  for (const auto& row : table) EXPECT_EQ(fromUtf8(row.utf8), row.text) << row.name;
  EXPECT_EQ(fromUtf8("\xC0\xAF").find('/'), std::string::npos) << "too long a form of a character";
}

TEST(Text, NumbersAreReadFromTheLeadingPart) {
  const struct {
    const char* text;
    double number;
    bool whole;  // the text is a number and nothing else
  } table[] = {
      {"12", 12, true},     {"-3.25", -3.25, true}, {"+5", 5, true},      {".5", 0.5, true},
      {"7.", 7, true},      {"1e3", 1000, true},    {"1E-2", 0.01, true}, {" \t4 ", 4, true},
      {"12abc", 12, false}, {"1e", 1, false},       {"1e+x", 1, false},   {"1.2.3", 1.2, false},
      {"1,5", 1, false},    {"0x10", 0, false},     {"abc", 0, false},    {"", 0, false},
      {"-", 0, false},      {".", 0, false},        {"inf", 0, false},    {"nan", 0, false},
      {"- 5", 0, false},    {"1 2", 1, false},      {"1e-999", 0, true},
  };
  for (const auto& row : table) {
    EXPECT_DOUBLE_EQ(leadingNumber(row.text), row.number) << '"' << row.text << '"';
    EXPECT_EQ(isNumber(row.text), row.whole) << '"' << row.text << '"';
  }
  EXPECT_GT(leadingNumber("1e999"), 1e300);
  EXPECT_LT(leadingNumber("-1e999"), -1e300);
}

struct DecimalComma : std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

TEST(Text, NumbersDoNotDependOnTheLocale) {
  const std::locale before =
      std::locale::global(std::locale(std::locale::classic(), new DecimalComma));
  std::setlocale(LC_NUMERIC, "de_DE.UTF-8");  // where it is installed
  EXPECT_EQ(leadingNumber("2.5"), 2.5);
  EXPECT_EQ(leadingNumber("2,5"), 2);
  EXPECT_EQ(leadingNumber("1.234.567"), 1.234);
  EXPECT_EQ(plainNumber(1234567), "1234567");
  EXPECT_EQ(signedNumber(0), " 0");
  EXPECT_EQ(signedNumber(1234567), " 1234567");
  EXPECT_EQ(signedNumber(-1234567), "-1234567");
  std::setlocale(LC_NUMERIC, "C");
  std::locale::global(before);
}

}  // namespace
}  // namespace glonks
