#include <gtest/gtest.h>

#include <map>

#include "setup/reasons_bands.h"
#include "setup/reasons_order_report.h"
#include "setup/reasons_sheets.h"
#include "tests/setup/reasons_contest.h"
#include "tests/support/approved.h"

namespace {

TEST(ReasonsBands, AreAtMostEightWideAndEven) {
  using Widths = std::vector<std::int32_t>;
  for (const auto& [groups, expected] : std::map<std::int32_t, Widths>{
           {8, {8}}, {9, {5, 4}}, {17, {6, 6, 5}}, {25, {7, 7, 7, 4}}, {0, {0}}, {-3, {0}}}) {
    Widths widths;
    std::int32_t first = 0;
    for (const ReasonsBand& band : reasonsBands(groups)) {
      EXPECT_EQ(band.first, first);
      first = band.end;
      widths.push_back(band.width());
    }
    EXPECT_EQ(widths, expected) << groups;
  }
  EXPECT_EQ(reasonsBands(2147483647).size(), 1250U);
}

// Ten groups, so two bands of five: the first group has two speakers, group 4 none, group 7 three.
// 115 has no place, 116 is a reserved slot.
Contest twoBandContest() {
  Contest contest = reasonsContest(10, 7, 16);
  placeGroup(contest, 0, {104, 101});
  placeGroup(contest, 1, {102, 105});
  placeGroup(contest, 2, {103});
  placeGroup(contest, 4, {106});
  placeGroup(contest, 5, {107});
  placeGroup(contest, 6, {108, 113, 114});
  placeGroup(contest, 7, {109});
  placeGroup(contest, 8, {110});
  placeGroup(contest, 9, {111, 112});
  contest.contestantNames[116] = "";
  contest.classes.officialLetter[2] = 'N';
  contest.scores[104][2] = {'N', 50, 47, 0};
  contest.scores[101][2] = {'Z', 0, 8, 0};
  contest.scores[108][2] = {'A', 33, 39, 0};
  return contest;
}

// 114, the third speaker of group 7, is not on the sheets: they end where the first group ends.
TEST(ReasonsSheet, ShowsPlacingsOrScoresInBands) {
  const Contest contest = twoBandContest();
  expectApproved(reasonsSheet(contest, ReasonsSheet::order, 2).value_or(""),
                 "setup/order_sheet_of_ten_groups.txt");
  expectApproved(reasonsSheet(contest, ReasonsSheet::verification, 2).value_or(""),
                 "setup/verification_sheet_of_ten_groups.txt");
}

TEST(ReasonsSheet, IsOnlyForReasonsClassesOfAContestWithAnOrder) {
  Contest contest = twoBandContest();
  for (const std::int32_t index : {-1, 0, 1, 8}) {
    EXPECT_EQ(reasonsSheet(contest, ReasonsSheet::order, index).has_value(), index == 1) << index;
  }
  contest.reasonsOrder.reset(0, 10);
  EXPECT_FALSE(reasonsSheet(contest, ReasonsSheet::order, 1));
}

// Seven classes in bands of five: in the room form turn i of group c is class (6i + c) mod 7.
TEST(ReasonsOrderReport, ShowsOrderUnassignedAndClassOrderInBands) {
  const Contest contest = twoBandContest();
  expectApproved(reasonsOrderReport(contest, ReasonsOrderForm::plain),
                 "setup/reasons_order_of_ten_groups.txt");
  expectApproved(reasonsOrderReport(contest, ReasonsOrderForm::room),
                 "setup/reasons_rooms_of_ten_groups.txt");
}

TEST(ReasonsOrderReport, StandsWithoutReasonsClassesAndWithAGapInTheFirstRow) {
  Contest contest = reasonsContest(1, 0, 3);
  placeGroup(contest, 0, {kNobody, 101});
  const std::string expected =
      "\n\n                 Reasons Order\n\n     1   \n   ----- \n"
      "\n\t\tContestants Not Assigned in Reasons Order\n     102 - Taker 102\n     103 - Taker "
      "103\n"
      "\n\nReasons Class Order\n-------------------\n\n\n\n";
  EXPECT_EQ(reasonsOrderReport(contest, ReasonsOrderForm::plain), expected);
}

}  // namespace
