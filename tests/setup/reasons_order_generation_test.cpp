#include "setup/reasons_order_generation.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "model/reasons_check.h"
#include "tests/setup/reasons_contest.h"

namespace {

std::vector<std::int32_t> groupsOfTakers(Contest contest) {
  EXPECT_EQ(generateReasonsOrder(contest, 7), std::nullopt);
  EXPECT_EQ(reasonsOrderFault(contest), "");
  std::vector<std::int32_t> groups;
  for (const auto& [number, name] : contest.contestantNames) {
    groups.push_back(contest.reasonsPlace[number].group);
  }
  return groups;
}

TEST(ReasonsRandom, IsTheClassicGenerator) {
  // 1 x 214013 + 2531011 = 2745024, whose bits 16 to 30 are 41; then 18467, as everybody knows.
  ReasonsRandom random(1);
  EXPECT_EQ(random.draw(), 41);
  EXPECT_EQ(random.draw(), 18467);
  EXPECT_EQ(random.draw(), 6334);
}

TEST(ReasonsOrderGeneration, DealsTheGroupsOutInTheirPattern) {
  using Groups = std::vector<std::int32_t>;
  EXPECT_EQ(groupsOfTakers(reasonsContest(3, 3, 6)), (Groups{0, 1, 2, 0, 1, 2}));
  EXPECT_EQ(groupsOfTakers(reasonsContest(6, 3, 6)), (Groups{0, 3, 4, 1, 2, 5}));
  EXPECT_EQ(groupsOfTakers(reasonsContest(9, 3, 8)), (Groups{0, 3, 4, 7, 8, 2, 3, 6}));
  EXPECT_EQ(groupsOfTakers(reasonsContest(5, 3, 6)), (Groups{0, 1, 2, 3, 4, 0}));
}

TEST(ReasonsOrderGeneration, PassesOverReservedSlotsAndFormerPlaces) {
  Contest contest = reasonsContest(3, 3, 5);
  contest.contestantNames[102] = "";
  contest.reasonsPlace[102] = {1, 0};
  contest.reasonsPlace[999] = {0, 4};
  EXPECT_EQ(groupsOfTakers(contest), (std::vector<std::int32_t>{0, kNobody, 1, 2, 0}));
  ASSERT_EQ(generateReasonsOrder(contest, 7), std::nullopt);
  EXPECT_FALSE(contest.reasonsPlace.contains(999));
  EXPECT_EQ(contest.reasonsOrder.rowCount(), 5);
  EXPECT_EQ(contest.reasonsOrder.columnCount(), 3);
}

// The rule told slowly for one group: up to 100 more draws while the row is taken, then the first
// free row. Gives how often chance did not hit a free row.
int fillSlowly(std::vector<ContestantNumber>& rows, std::uint32_t seed) {
  ReasonsRandom random(seed);
  const auto drawRow = [&] { return static_cast<std::size_t>(random.draw()) % rows.size(); };
  int misses = 0;
  for (std::size_t taker = 0; taker < rows.size(); ++taker) {
    std::size_t row = drawRow();
    int tries = 0;
    while (rows[row] != kNobody) {
      row = drawRow();
      if (++tries <= 100) continue;
      ++misses;
      row = static_cast<std::size_t>(std::find(rows.begin(), rows.end(), kNobody) - rows.begin());
    }
    rows[row] = 101 + static_cast<ContestantNumber>(taker);
  }
  return misses;
}

TEST(ReasonsOrderGeneration, FillsTheLastRowsWhenChanceDoesNotHitThem) {
  constexpr int kTakers = 150;
  int misses = 0;
  for (std::uint32_t seed = 1; seed <= 10; ++seed) {
    std::vector<ContestantNumber> rows(kTakers, kNobody);
    misses += fillSlowly(rows, seed);
    Contest contest = reasonsContest(1, 1, kTakers);
    ASSERT_EQ(generateReasonsOrder(contest, seed), std::nullopt);
    for (std::int32_t row = 0; row < kTakers; ++row) {
      ASSERT_EQ(contest.reasonsOrder.cell(row, 0), rows[static_cast<std::size_t>(row)])
          << "seed " << seed << ", row " << row;
    }
  }
  EXPECT_GT(misses, 0) << "none of the seeds shows the case";
}

TEST(ReasonsOrderGeneration, RefusesAndChangesNothing) {
  const auto refusal = [](Contest contest) {
    placeGroup(contest, 0, {102, 101});
    const Contest before = contest;
    std::string message = generateReasonsOrder(contest, 1).value_or("");
    EXPECT_EQ(contest, before) << message;
    return message;
  };
  EXPECT_EQ(refusal(reasonsContest(2, 3, 4)),
            "There must be at least as many reasons takers as there are reasons classes.\n"
            "\t\tA reasons order can not be assigned.");
  const std::string noClasses = "There are no reasons classes.  Reasons order cannot be generated.";
  EXPECT_EQ(refusal(reasonsContest(2, 0, 4)), noClasses);
  EXPECT_EQ(refusal(reasonsContest(0, 0, 4)), noClasses);

  Contest withoutRows = reasonsContest(1, 1, 4);
  withoutRows.reasonsOrder.reset(0, 1);
  EXPECT_NE(refusal(withoutRows), "");
  Contest withoutRoom = reasonsContest(2, 1, 5);
  withoutRoom.reasonsOrder.reset(2, 2);
  EXPECT_NE(refusal(withoutRoom), "");
}

}  // namespace
