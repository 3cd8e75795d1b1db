#include "model/reasons_places.h"

#include <gtest/gtest.h>

#include <random>

#include "tests/reasons/reasons_contest.h"

namespace scorvane {

namespace {

// The rule itself, word by word: as often as there are rows, whatever is below an empty cell
// moves up by one. Whoever gave up the place stays unassigned.
void moveUpSlowly(Contest& contest) {
  ReasonsOrder& order = contest.reasonsOrder;
  const std::int32_t rows = order.rowCount();
  for (std::int32_t step = 0; step < rows * rows; ++step) {
    for (std::int32_t g = 0; g < contest.settings.numReasonsGroups; ++g) {
      if (order.cell(step % rows, g) != kNobody) continue;
      for (std::int32_t s = step % rows + 1; s < rows; ++s) {
        const std::int32_t moved = order.cell(s, g);
        order.setCell(s - 1, g, moved);
        order.setCell(s, g, kNobody);
        if (reasonsPlaceOf(contest, moved).isAssigned()) --contest.reasonsPlace[moved].position;
      }
    }
  }
}

TEST(ReasonsCompaction, AgreesWithTheRuleOnRandomTables) {
  for (unsigned seed = 1; seed <= 200; ++seed) {
    std::mt19937 random(seed);
    Contest contest = reasonsContest(3, 1, static_cast<int>(random() % 12));
    for (const auto& [number, name] : contest.contestantNames) {
      const auto cell = static_cast<std::int32_t>(random() % (contest.teams.size() * 3));
      if (contest.reasonsOrder.cell(cell / 3, cell % 3) != kNobody) continue;  // unassigned
      contest.reasonsOrder.setCell(cell / 3, cell % 3, number);
      if (random() % 4 != 0) contest.reasonsPlace[number] = {cell % 3, cell / 3};
    }
    Contest expected = contest;
    moveUpSlowly(expected);
    compactReasonsOrder(contest);
    ASSERT_EQ(contest, expected) << "seed " << seed;
  }
}

}  // namespace

}  // namespace scorvane
