#include "model/placing.h"

#include <gtest/gtest.h>

#include <algorithm>

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

}  // namespace

}  // namespace scorvane
