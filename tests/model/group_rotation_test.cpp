#include "model/group_rotation.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace scorvane {

namespace {

// The column of a round as officials lay it out: the letters go to class `round` and those below
// it, and what does not fit wraps around to the first classes.
std::string laidOut(std::size_t classes, int groups, std::size_t round) {
  std::string column(classes, ' ');
  char letter = 'A';
  for (std::size_t k = round; k < classes && letter - 'A' < groups; ++k) column[k] = letter++;
  for (std::size_t k = 0; letter - 'A' < groups; ++k) column[k] = letter++;
  return column;
}

TEST(Rotation, TakesTheGroupsThroughTheClasses) {
  for (int classes = 0; classes <= 7; ++classes) {
    for (int groups = 0; groups <= classes; ++groups) {
      const Rotation rotation(classes, groups);
      for (int round = 0; round < classes; ++round) {
        std::string column;
        for (int k = 0; k < classes; ++k) {
          const char letter = rotation.groupAt(k, round);
          column += letter;
          if (letter == ' ') continue;
          EXPECT_EQ(rotation.classOf(letter, round), k);
          EXPECT_EQ(rotation.roundOf(letter, k), round);
        }
        EXPECT_EQ(column, laidOut(column.size(), groups, static_cast<std::size_t>(round)));
      }
    }
  }
}

TEST(Rotation, AnswersWhatIsNotInTheTable) {
  const Rotation rotation(3, 5);
  EXPECT_EQ(rotation.judgingGroups(), 3);
  for (const auto& [letter, index] : {std::pair{'D', 0}, {'@', 0}, {' ', 0}, {'A', 3}, {'A', -1}}) {
    EXPECT_EQ(rotation.classOf(letter, index), std::nullopt);
    EXPECT_EQ(rotation.roundOf(letter, index), 3);
    EXPECT_EQ(rotation.groupAt(index, -1), ' ');
    EXPECT_EQ(rotation.groupAt(3, index), ' ');
  }
  EXPECT_EQ(Rotation(3, -1).groupAt(0, 0), ' ');
  EXPECT_EQ(Rotation(300, 2147483647).groupAt(190, 0), '\xFF');
  EXPECT_EQ(Rotation(300, 2147483647).groupAt(191, 0), ' ');
}

}  // namespace

}  // namespace scorvane
