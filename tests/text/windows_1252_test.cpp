#include "text/windows_1252.h"

#include <gtest/gtest.h>

namespace scorvane {

namespace {

TEST(Windows1252, BecomesUtf8ThatMarkupAndTablesCanHold) {
  std::string utf8, markup;
  appendUtf8(utf8, {"A\x80\x8E\x9F\xA0\xE9\xFF|\x81\x8D\x8F\x90\x9D|\0\t\r\n\x1F\x7F~<", 22});
  EXPECT_EQ(utf8, "A\u20AC\u017D\u0178\u00A0\u00E9\u00FF|\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD|      ~<");
  appendMarkup(markup, "<b a=\"'x'\">&\xE9\x07");
  EXPECT_EQ(markup, "&lt;b a=&quot;&#39;x&#39;&quot;&gt;&amp;\u00E9 ");
}

}  // namespace

}  // namespace scorvane
