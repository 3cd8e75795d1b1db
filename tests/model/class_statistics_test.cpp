#include "model/class_statistics.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <numeric>
#include <set>
#include <utility>

#include "tests/support/contest_builder.h"
#include "tools/contest_maker.h"

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

TEST(ClassStatistics, CountTheCardsOfWhoeverHasAName) {
  ContestPlan plan;
  plan.contestants = 300;
  plan.missingPercent = 10;
  Contest contest = makeContest(plan);
  for (ContestantNumber number = 101; number < 400; number += 7) {
    contest.contestantNames[number].clear();
  }
  for (std::int32_t k = 0; k < contest.classes.count(); ++k) {
    std::multiset<std::int32_t> scores;
    std::map<char, std::int32_t> given;
    for (const auto& [number, name] : contest.contestantNames) {
      const ScoreRecord& record = scoreRecord(contest, number, k);
      if (name.empty() || record.letter == kNoLetter) continue;
      scores.insert(record.placingScore);
      ++given[record.letter];
    }
    const ClassStatistics told = CardsByClass(contest).statistics(k);
    EXPECT_EQ(std::tie(told.lowest, told.highest), std::tie(*scores.begin(), *scores.rbegin()));
    EXPECT_EQ(told.placings.sum, std::accumulate(scores.begin(), scores.end(), 0));
    EXPECT_EQ(told.perfect, static_cast<std::int32_t>(scores.count(kTopScore)));
    for (const GivenPlacing& placing : told.given) {
      EXPECT_EQ(std::exchange(given[placing.letter], 0), placing.count) << placing.letter;
    }
    EXPECT_TRUE(
        std::all_of(given.begin(), given.end(), [](auto& left) { return left.second == 0; }));
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
