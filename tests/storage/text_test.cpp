#include "base/text.h"

#include <gtest/gtest.h>

#include <locale>

namespace glonks {
namespace {

TEST(Text, GoesToUtf8AndBack) {
  std::string all;
  for (int code = 0; code < 256; ++code) all += static_cast<char>(code);
  EXPECT_EQ(toUtf8(all.substr(0x80, 32)),
            "€\u0081‚ƒ„…†‡ˆ‰Š‹Œ\u008DŽ\u008F\u0090‘’“”•–—˜™š›œ\u009DžŸ");
  EXPECT_EQ(fromUtf8(toUtf8(all)), all);
  // What the set doesn't have becomes a question mark.
  EXPECT_EQ(fromUtf8("aĀ漢😀\u0080z"), "a????z");
  EXPECT_EQ(fromUtf8("\x80\xFFz\xC3(\xE2\x82z\xE2\x82"), "??z?(??z??") << "nothing whole";
}

struct DecimalComma : std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
};

TEST(Text, NumbersAreReadFromTheLeadingPartInAnyLocale) {
  // Each with its number, and whether it is a number and nothing else.
  const std::tuple<const char*, double, bool> table[] = {
      {"-3.25", -3.25, true}, {"+5", 5, true},    {".5", 0.5, true},    {"7.", 7, true},
      {"1E-2", 0.01, true},   {" \t4 ", 4, true}, {"12abc", 12, false}, {"1e", 1, false},
      {"1.2.3", 1.2, false},  {"1e+x", 1, false}, {"1,5", 1, false},    {"0x10", 0, false},
      {"", 0, false},         {"-", 0, false},    {".", 0, false},      {"inf", 0, false},
  };
  const std::locale before =
      std::locale::global(std::locale(std::locale::classic(), new DecimalComma));
  for (const auto& [text, number, whole] : table) {
    EXPECT_DOUBLE_EQ(leadingNumber(text), number) << '"' << text << '"';
    EXPECT_EQ(isNumber(text), whole) << '"' << text << '"';
  }
  std::locale::global(before);
}

}  // namespace
}  // namespace glonks
