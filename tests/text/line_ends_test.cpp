#include "text/line_ends.h"

#include <gtest/gtest.h>

namespace scorvane {

TEST(LineEnds, OnlyLineFeedsChange) {
  EXPECT_EQ(withWindowsLineEnds(""), "");
  EXPECT_EQ(withWindowsLineEnds("a\n\nb\tc"), "a\r\n\r\nb\tc");
  EXPECT_EQ(withWindowsLineEnds("a\rb\r\n"), "a\rb\r\r\n");
}

}  // namespace scorvane
