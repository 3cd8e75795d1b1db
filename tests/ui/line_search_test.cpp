#include "ui/line_search.h"

#include <gtest/gtest.h>

namespace scorvane {

TEST(LineSearch, GoesRoundFromTheLineAfterAndSkipsBlanks) {
  const std::vector<std::string> lines = {" 1.  Steers", "", " 2.  Ewes", "   a   ", "10.  Hogs"};
  struct Case {
    char typed;
    std::optional<int> after, found;
  };
  for (const Case& c : {Case{'1', {}, 0},
                        {'1', 0, 4},
                        {'1', 4, 0},
                        {'2', 2, 2},
                        {'2', 3, 2},
                        {'A', {}, 3},
                        {'a', 3, 3},
                        {'S', {}, {}}}) {
    EXPECT_EQ(lineBeginningWith(lines, c.typed, c.after), c.found) << c.typed;
  }
  EXPECT_EQ(lineBeginningWith({}, '1', {}), std::nullopt);
}

}  // namespace scorvane
