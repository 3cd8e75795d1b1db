#include "model/placing.h"

#include <gtest/gtest.h>

#include <algorithm>

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
  const Cuts cuts = {2, 3, 4};
  EXPECT_EQ(placingScore('A', 'A', cuts), 50);
  EXPECT_EQ(placingScore('B', 'A', cuts), 46);
  EXPECT_EQ(placingScore('G', 'A', cuts), 48);
  EXPECT_EQ(placingScore('X', 'A', cuts), 20);
  // Official 3-1-4-2; the contestant's 1-2-3-4 reverses 3/1 (2), 3/2 (2+3+4) and 4/2 (4).
  EXPECT_EQ(placingScore('A', 'N', cuts), 50 - 2 - 9 - 4 - 0);
  EXPECT_EQ(placingScore('Q', 'Q', {5, 5, 5}), 50);
  EXPECT_EQ(placingScore('X', 'A', {0, 0, 0}), 50);
}

TEST(PlacingScore, IsNotClampedBelowZero) {
  EXPECT_EQ(placingScore('X', 'A', {0, 13, 0}), -2);
  EXPECT_EQ(placingScore('X', 'A', {0, 12, 1}), -1);
}

TEST(PlacingScore, IsZeroWithoutAnOrderOnEitherSide) {
  for (const char letter : {' ', 'Y', 'Z'}) {
    EXPECT_EQ(placingScore(letter, 'A', {1, 2, 3}), 0);
    EXPECT_EQ(placingScore('A', letter, {1, 2, 3}), 0);
  }
}

TEST(Cuts, AreLegalUpToFifteenWithASmallMiddleCut) {
  EXPECT_TRUE(validateCuts(5, 5, 5));
  EXPECT_FALSE(validateCuts(5, 6, 4));
  EXPECT_TRUE(validateCuts(3, 8, 3));
  EXPECT_TRUE(validateCuts(2, 8, 4));
  EXPECT_FALSE(validateCuts(2, 9, 3));
  EXPECT_FALSE(validateCuts(6, 5, 5));
  EXPECT_TRUE(validateCuts(0, 13, 0));
  EXPECT_FALSE(validateCuts(4294967295U, 1, 0));
}

}  // namespace
