// What a placing is worth, and what all the cards of a class tell.
#include "model/placing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <numeric>
#include <set>
#include <utility>

#include "model/class_statistics.h"
#include "tests/support/contest_builder.h"
#include "tools/contest_maker.h"

namespace scorvane {

namespace {

TEST(PlacingLetters, NumberTheOrdersOfFourAnimalsAscending) {
  std::array<std::int32_t, 4> order = {1, 2, 3, 4};
  for (char letter = 'A'; letter <= 'X'; ++letter) {
    EXPECT_EQ(orderOfLetter(letter), order) << letter;
    std::next_permutation(order.begin(), order.end());
  }
  for (const char other : {' ', 'Y', 'Z', '@', 'a', '\xC4', '\0'}) {
    EXPECT_EQ(orderOfLetter(other), (std::array<std::int32_t, 4>{0, 0, 0, 0}));
  }
}

TEST(PlacingScore, SubtractsTheCutsOfEveryReversedPair) {
  struct Case {
    char letter, official;
    Cuts cuts;
    std::int32_t score;
  };
  for (const auto& [letter, official, cuts, score] :
       {Case{'A', 'A', {2, 3, 4}, 50}, Case{'B', 'A', {2, 3, 4}, 46}, Case{'G', 'A', {2, 3, 4}, 48},
        Case{'X', 'A', {2, 3, 4}, 20}, Case{'X', 'A', {0, 0, 0}, 50},
        // Official 3-1-4-2; 1-2-3-4 reverses 3/1 (2), 3/2 (2+3+4) and 4/2 (4).
        Case{'A', 'N', {2, 3, 4}, 50 - 2 - 9 - 4},
        // Orders that are not their own inverse. Official 1-3-4-2; 1-2-3-4 reverses 2/3 (3+4) and
        // 2/4 (4). The other way round 3/2 (3) and 4/2 (3+4) are reversed.
        Case{'A', 'D', {2, 3, 4}, 50 - 7 - 4}, Case{'D', 'A', {2, 3, 4}, 50 - 3 - 7},
        // Official 3-2-4-1; 2-3-1-4 reverses 2/3 (2) and 1/4 (4).
        Case{'I', 'P', {2, 3, 4}, 50 - 2 - 4},
        // Official 4-1-2-3; 2-3-4-1 reverses 2/4 (2+3), 3/4 (2+3+4), 2/1 (3) and 3/1 (3+4).
        Case{'J', 'S', {2, 3, 4}, 50 - 5 - 9 - 3 - 7},
        // Not clamped below 0.
        Case{'X', 'A', {0, 13, 0}, -2}, Case{'X', 'A', {0, 12, 1}, -1},
        // Without an order on either side.
        Case{' ', 'A', {1, 2, 3}, 0}, Case{'Y', 'A', {1, 2, 3}, 0}, Case{'A', 'Z', {1, 2, 3}, 0}}) {
    EXPECT_EQ(placingScore(letter, official, cuts), score) << letter << official;
  }
  for (char letter = 'A'; letter <= 'X'; ++letter) {
    EXPECT_EQ(placingScore(letter, letter, {2, 3, 4}), kTopScore) << letter;
  }
}

// All placings under all cuts: each pair stands the other way round with the officials, none is
// told twice, and they add up to what was lost, also of a score below 0.
TEST(LostPairs, AddUpToWhatWasLost) {
  EXPECT_EQ(lostPairs('J', 'S', {2, 3, 4}),
            (std::vector<LostPair>{{3, 4, 9}, {2, 4, 5}, {3, 1, 7}, {2, 1, 3}}));
  EXPECT_EQ(lostPairs('X', 'A', {0, 13, 0}).size(), 4U);
  EXPECT_TRUE(lostPairs('Z', 'A', {2, 3, 4}).empty());
  EXPECT_TRUE(lostPairs('A', ' ', {2, 3, 4}).empty());
  for (std::int32_t code = 0; code < 16 * 16 * 16; ++code) {
    const Cuts cuts = {code % 16, code / 16 % 16, code / 256};
    if (cuts.cut1 + cuts.cut2 + cuts.cut3 > 15) continue;
    for (char official = 'A'; official <= 'X'; ++official) {
      for (char letter = 'A'; letter <= 'X'; ++letter) {
        std::int32_t lost = 0;
        for (const LostPair& pair : lostPairs(letter, official, cuts)) lost += pair.points;
        ASSERT_EQ(lost, 50 - placingScore(letter, official, cuts)) << letter << official << code;
      }
    }
  }
}

TEST(Cuts, AreLegalUpToFifteenWithASmallMiddleCut) {
  using Three = std::array<std::uint32_t, 3>;
  for (const auto& [a, b, c] : {Three{5, 5, 5}, {3, 8, 3}, {0, 13, 0}}) {
    EXPECT_TRUE(validateCuts(a, b, c)) << b;
  }
  for (const auto& [a, b, c] : {Three{5, 6, 4}, {2, 9, 3}, {6, 5, 5}, {4294967295U, 1, 0}}) {
    EXPECT_FALSE(validateCuts(a, b, c)) << b;
  }
}

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
