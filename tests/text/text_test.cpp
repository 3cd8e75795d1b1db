#include <gtest/gtest.h>

#include "text/characters.h"
#include "text/number.h"
#include "text/report_marks.h"
#include "text/unicode.h"
#include "text/windows_1252.h"

namespace scorvane {

namespace {

TEST(Text, LineFeedsGetReturnsAndCommandsBecomeBlanks) {
  EXPECT_EQ(withWindowsLineEnds("a\n\nb\tc"), "a\r\n\r\nb\tc");
  EXPECT_EQ(withWindowsLineEnds("a\rb\r\n"), "a\rb\r\r\n");
  EXPECT_EQ(withoutControlCharacters("\x1f\ta \r\nb\x7f\x80\xff"), "  a   b\x7f\x80\xff");
  EXPECT_EQ(withoutCommands("\x1b[2J\a\r\t\r\n\n\x7f\xc2\x9b\xc2\xa0\x9b\xc2"),
            " [2J  \t\r\n\n   \xc2\xa0\x9b\xc2");
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

TEST(Text, NamesPassBetweenTheirEncodings) {
  // A letter of each length, the last of the pairs, and surrogates without a partner.
  for (const std::u16string_view name :
       {u"", u"aé\u07FFΩ\uFFFF", u"\U00010000\U0010FFFF", u"\xDC00\xD800", u"\xD800z"}) {
    EXPECT_EQ(utf16Of(utf8Of(name)), name);
  }
  EXPECT_EQ(utf8Of(u"aéΩ\U0001F404"), "aéΩ🐄");
  EXPECT_EQ(utf8Of(u"\xDC00"), "\xED\xB0\x80");
  for (const char* malformed :
       {"\x80", "\xC3", "\xC3z", "\xC0\xAF", "\xE0\x80\xAF", "\xF0\x80\x80\xAF", "\xE2\x82",
        "\xE9t", "\xED\xA0\x80\xED\xB0\x80", "\xF4\x90\x80\x80", "\xF8\x88\x80\x80\x80", "\xFF"}) {
    EXPECT_EQ(utf16Of(malformed), std::nullopt) << malformed;
  }
}

TEST(Text, NamesAreShownInTheCodePageAndCountedInCharacters) {
  EXPECT_EQ(windows1252Of("A é€Ÿ\u00A0ÿ"), "A \xE9\x80\x9F\xA0\xFF");
  EXPECT_EQ(windows1252Of("Ω🐄e\u0301\u0081Ｏ"), "??e???");
  EXPECT_EQ(windows1252Of("caf\xE9"), "caf?");
  EXPECT_EQ(countCharacters("aΩ🐄\xED\xA0\x80"), 4U);
  EXPECT_EQ(countCharacters("caf\xE9"), 4U);
  EXPECT_EQ(cutBetweenCharacters("aΩ🐄z", 6), "aΩ");
  EXPECT_EQ(cutBetweenCharacters("aΩ🐄z", 7), "aΩ🐄");
  EXPECT_EQ(cutBetweenCharacters("aΩ", 9), "aΩ");
}

TEST(Text, AReportEndsOnceItIsBeyondAllUse) {
  std::string report(96U << 20U, 'x');
  EXPECT_FALSE(closeIfTooLong(report));
  report += "x";
  EXPECT_TRUE(closeIfTooLong(report));
  EXPECT_TRUE(report.ends_with("x\nThis report is too long; it ends here.\n"));
}

TEST(Windows1252, BecomesUtf8ThatMarkupAndTablesCanHold) {
  std::string utf8, markup;
  appendUtf8(utf8, {"A\x80\x8E\x9F\xA0\xE9\xFF|\x81\x8D\x8F\x90\x9D|\0\t\r\n\x1F\x7F~<", 22});
  EXPECT_EQ(utf8, "A\u20AC\u017D\u0178\u00A0\u00E9\u00FF|\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD|      ~<");
  appendMarkup(markup, "<b a=\"'x'\">&\xE9\x07");
  EXPECT_EQ(markup, "&lt;b a=&quot;&#39;x&#39;&quot;&gt;&amp;\u00E9 ");
}

}  // namespace

}  // namespace scorvane
