#include <gtest/gtest.h>

#include "text/characters.h"
#include "text/number.h"
#include "text/report_marks.h"

namespace scorvane {

namespace {

TEST(Text, LineFeedsGetReturnsAndControlCharactersBecomeBlanks) {
  EXPECT_EQ(withWindowsLineEnds("a\n\nb\tc"), "a\r\n\r\nb\tc");
  EXPECT_EQ(withWindowsLineEnds("a\rb\r\n"), "a\rb\r\r\n");
  EXPECT_EQ(withoutControlCharacters("\x1f\ta \r\nb\x7f\x80\xff"), "  a   b\x7f\x80\xff");
}

TEST(Text, DigitsOnlyFieldsHoldANumberOrNothing) {
  EXPECT_EQ(unsignedNumber(" 4294967295\r\n"), 4294967295U);
  EXPECT_EQ(typedNumber("\t-12 "), -12);
  EXPECT_EQ(typedNumber("999999999999999999"), 999'999'999'999'999'999);
  EXPECT_EQ(typedNumber("-1000000000000000000"), -999'999'999'999'999'999);
  for (const char* text : {"", " ", "-", "+5", "1 2", "7x", "--1"}) {
    EXPECT_EQ(unsignedNumber(text), std::nullopt) << text;
    EXPECT_EQ(typedNumber(text), std::nullopt) << text;
  }
  EXPECT_EQ(unsignedNumber("4294967296"), std::nullopt);
  EXPECT_EQ(unsignedNumber("-1"), std::nullopt);
}

TEST(Text, AReportEndsOnceItIsBeyondAllUse) {
  std::string report(96U << 20U, 'x');
  EXPECT_FALSE(closeIfTooLong(report));
  report += "x";
  EXPECT_TRUE(closeIfTooLong(report));
  EXPECT_TRUE(report.ends_with("x\nThis report is too long; it ends here.\n"));
}

}  // namespace

}  // namespace scorvane
