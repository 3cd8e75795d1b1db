#include "model/class_statistics.h"

#include <gtest/gtest.h>

#include "tests/support/contest_builder.h"

namespace scorvane {

namespace {

// What the field placed, in one class with official placing A and cuts 2, 3, 4.
std::optional<LikelierPlacing> likelierOf(std::string_view letters) {
  ContestBuilder builder;
  builder.addClass({});
  for (const char letter : letters) {
    builder.contestant("Ann").placings(builder.contest.contestantNames.back().first, {&letter, 1});
  }
  return likelierPlacing(CardsByClass(builder.contest).statistics(0), 'A', {2, 3, 4});
}

TEST(LikelierPlacing, NeedsTenCardsAndMoreThanHalfOfThem) {
  struct Case {
    const char* promise;
    std::string_view letters;
    char letter;
    std::int32_t better;
  };
  for (const auto& [promise, letters, letter, better] :
       {Case{"ten cards", "XXXXXXXXXX", 'X', 10}, Case{"nine and zero cards", "XXXXXXXXXZZZ", 0, 0},
        Case{"half are too few", "AAAAAXXXXX", 0, 0},
        Case{"zero cards aside", "AAAAAXXXXXXZZ", 'X', 6},
        // B, E and H are better for all who have B or H.
        Case{"the highest sum of several", "BBBBHHHHHH", 'H', 10},
        Case{"a field that agrees", "AAAAAAAAAB", 0, 0}}) {
    const auto likelier = likelierOf(letters);
    ASSERT_EQ(likelier.has_value(), letter != 0) << promise;
    if (!likelier) continue;
    EXPECT_EQ(likelier->letter, letter) << promise;
    EXPECT_EQ(likelier->better, better) << promise;
  }
}

TEST(ScoreSum, RoundsToTenths) {
  using Case = std::array<std::int64_t, 3>;
  for (const auto& [sum, count, tenths] :
       {Case{0, 0, 0}, Case{1, 4, 3}, Case{-1, 4, -3}, Case{2, 3, 7}, Case{100, 2, 500}}) {
    EXPECT_EQ((ScoreSum{static_cast<std::int32_t>(count), sum}.averageInTenths()), tenths) << sum;
  }
}

}  // namespace

}  // namespace scorvane
