#include "setup/reasons_compaction.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "model/reasons_check.h"
#include "tests/setup/reasons_contest.h"

namespace {

// The rule itself, told slowly: as often as there are rows, whatever stands below an empty cell
// moves up by one.
void moveUpSlowly(Contest& contest) {
  ReasonsOrder& order = contest.reasonsOrder;
  const std::int32_t rows = order.rowCount();
  for (std::int32_t pass = 0; pass < rows; ++pass) {
    for (std::int32_t r = 0; r < rows; ++r) {
      for (std::int32_t g = 0; g < contest.settings.numReasonsGroups; ++g) {
        if (order.cell(r, g) != kNobody) continue;
        for (std::int32_t s = r + 1; s < rows; ++s) {
          const std::int32_t moved = order.cell(s, g);
          order.setCell(s - 1, g, moved);
          order.setCell(s, g, kNobody);
          if (moved != kNobody) --contest.reasonsPlace[moved].position;
        }
      }
    }
  }
}

TEST(ReasonsCompaction, AgreesWithTheRuleOnRandomTables) {
  for (unsigned seed = 1; seed <= 300; ++seed) {
    std::mt19937 random(seed);
    const int contestants = static_cast<int>(random() % 12);
    const int groups = 1 + static_cast<int>(random() % 4);
    Contest contest = reasonsContest(groups, 1, contestants);
    for (const auto& [number, name] : contest.contestantNames) {
      const auto row = static_cast<std::int32_t>(random() % static_cast<unsigned>(contestants));
      const auto group = static_cast<std::int32_t>(random() % static_cast<unsigned>(groups));
      if (contest.reasonsOrder.cell(row, group) != kNobody) continue;  // stays unassigned
      contest.reasonsOrder.setCell(row, group, number);
      contest.reasonsPlace[number] = {group, row};
    }
    Contest expected = contest;
    moveUpSlowly(expected);
    compactReasonsOrder(contest);
    ASSERT_EQ(contest, expected) << "seed " << seed;
    ASSERT_EQ(reasonsOrderFault(contest), "") << "seed " << seed;
  }
}

TEST(ReasonsCompaction, LeavesWhoeverGaveUpThePlaceUnassigned) {
  Contest contest = reasonsContest(1, 1, 3);
  placeGroup(contest, 0, {kNobody, 101, 102});
  contest.reasonsPlace[101] = {};
  compactReasonsOrder(contest);
  EXPECT_EQ(contest.reasonsOrder.cell(0, 0), 101);
  EXPECT_FALSE(contest.reasonsPlace[101].isAssigned());
  EXPECT_EQ(contest.reasonsPlace[102], (ReasonsPlace{0, 1}));
  EXPECT_NE(reasonsOrderFault(contest), "");
}

TEST(ReasonsCheck, FindsEveryWayTableAndPlacesCanDisagree) {
  Contest sound = reasonsContest(2, 1, 4);
  placeGroup(sound, 0, {101, 102});
  placeGroup(sound, 1, {103});
  ASSERT_EQ(reasonsOrderFault(sound), "");
  const auto faultAfter = [&](auto damage) {
    Contest contest = sound;
    damage(contest);
    return reasonsOrderFault(contest);
  };
  EXPECT_NE(faultAfter([](Contest& c) { c.reasonsOrder.setCell(1, 0, kNobody); }), "");
  EXPECT_NE(faultAfter([](Contest& c) { c.reasonsOrder.setCell(2, 1, 101); }), "");
  EXPECT_NE(faultAfter([](Contest& c) { c.reasonsPlace[104] = {1, 1}; }), "");
  EXPECT_NE(faultAfter([](Contest& c) { c.reasonsPlace[103] = {0, 0}; }), "");
  EXPECT_NE(faultAfter([](Contest& c) { c.reasonsPlace.erase(101); }), "");
  EXPECT_NE(faultAfter([](Contest& c) { c.settings.numReasonsGroups = 1; }), "");
}

}  // namespace
