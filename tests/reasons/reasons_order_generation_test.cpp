#include "reasons/reasons_order_generation.h"

#include <gtest/gtest.h>

#include "tests/reasons/reasons_contest.h"
#include "tests/support/approved.h"
#include "tests/support/reasons_check.h"

namespace scorvane {

namespace {

using Groups = std::vector<std::int32_t>;

Groups groupsOfSpeakers(Contest contest) {
  EXPECT_EQ(generateReasonsOrder(contest, 7), std::nullopt);
  EXPECT_TRUE(orderAgreesWithPlaces(contest));
  Groups groups;
  for (const auto& [number, place] : contest.reasonsPlace) groups.push_back(place.group);
  return groups;
}

TEST(ReasonsOrderGeneration, DealsTheGroupsOutInTheirPattern) {
  EXPECT_EQ(groupsOfSpeakers(reasonsContest(3, 3, 6)), (Groups{0, 1, 2, 0, 1, 2}));
  EXPECT_EQ(groupsOfSpeakers(reasonsContest(6, 3, 6)), (Groups{0, 3, 4, 1, 2, 5}));
  EXPECT_EQ(groupsOfSpeakers(reasonsContest(9, 3, 8)), (Groups{0, 3, 4, 7, 8, 2, 3, 6}));
  EXPECT_EQ(groupsOfSpeakers(reasonsContest(5, 3, 6)), (Groups{0, 1, 2, 3, 4, 0}));
  // Reserved slots and former places do not count.
  Contest contest = reasonsContest(3, 3, 5);
  contest.contestantNames[102] = "";
  contest.reasonsPlace[102] = {1, 0};
  contest.reasonsPlace[999] = {0, 4};
  EXPECT_EQ(groupsOfSpeakers(contest), (Groups{0, kNobody, 1, 2, 0}));
}

// The generator's first draws from seed 1 are 41, 18467 and 6334. Of three rows they name 2; 2
// again, then 1. That leaves row 0 for the gap to close.
TEST(ReasonsOrderGeneration, DrawsRowsUntilOneIsFree) {
  Contest contest = reasonsContest(1, 1, 2);
  Contest expected = contest;
  contest.reasonsOrder.reset(3, 9);
  ASSERT_EQ(generateReasonsOrder(contest, 1), std::nullopt);
  expected.reasonsOrder.reset(3, 1);
  placeGroup(expected, 0, {102, 101});
  EXPECT_EQ(contest, expected);
  // Chance does not hit the last rows of many in time; the first free ones are taken.
  EXPECT_EQ(groupsOfSpeakers(reasonsContest(1, 1, 500)), Groups(500, 0));
}

// Of ten rows seed 1 names 1, 7, 4, 0, 9; seed 2 names 5, 6, 8, 5 again and so 4, then 0.
TEST(ReasonsOrderGeneration, FollowsItsSeed) {
  struct Case {
    std::uint32_t seed;
    std::vector<std::int32_t> draws;
    std::vector<ContestantNumber> speakers;
  };
  for (const auto& [seed, draws, speakers] :
       {Case{1, {41, 18467, 6334, 26500, 19169}, {104, 101, 103, 102, 105}},
        Case{2, {45, 29216, 24198, 17795, 29484}, {105, 104, 101, 102, 103}}}) {
    ReasonsRandom random(seed);
    for (const std::int32_t draw : draws) EXPECT_EQ(random.draw(), draw) << seed;
    Contest contest = reasonsContest(1, 1, 5);
    contest.reasonsOrder.reset(10, 1);
    ASSERT_EQ(generateReasonsOrder(contest, seed), std::nullopt);
    std::vector<ContestantNumber> order;
    for (const auto& [cell, number] : contest.reasonsOrder.cells()) order.push_back(number);
    EXPECT_EQ(order, speakers) << seed;
  }
}

// Before the teams are entered: reserved slots take no part.
TEST(ReasonsOrderGeneration, RunsThroughWithNobodyToPlace) {
  Contest contest = reasonsContest(2, 1, 0);
  contest.contestantNames[101] = "";
  contest.reasonsPlace[101] = {1, 0};
  EXPECT_EQ(generateReasonsOrder(contest, 1), std::nullopt);
  EXPECT_EQ(reasonsPlaceOf(contest, 101), ReasonsPlace{});
}

TEST(ReasonsOrderGeneration, RefusesAndChangesNothing) {
  struct Case {
    std::int32_t groups;
    int classes;
    std::int64_t rows;
  };
  std::string refusals;
  for (const auto& [groups, classes, rows] :
       {Case{2, 3, 4}, Case{2, 0, 4}, Case{0, 0, 4}, Case{2, 1, 0}, Case{2, 1, 1}}) {
    Contest contest = reasonsContest(groups, classes, 4);
    contest.reasonsOrder.reset(rows, groups);
    placeGroup(contest, 0, {102, 101});
    const Contest before = contest;
    refusals += generateReasonsOrder(contest, 1).value_or("none") + '\n';
    EXPECT_EQ(contest, before) << refusals;
  }
  expectApproved(refusals, "reasons/reasons_order_refused.txt");
}

}  // namespace

}  // namespace scorvane
