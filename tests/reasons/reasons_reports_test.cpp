#include <gtest/gtest.h>

#include <regex>

#include "reasons/reasons_reports.h"
#include "tests/reasons/reasons_contest.h"
#include "tests/support/approved.h"
#include "text/report_marks.h"

namespace scorvane {

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
  Contest contest = reasonsContest(10, 3, 16);
  std::int32_t group = 0;
  for (const std::vector<ContestantNumber>& speakers :
       std::vector<std::vector<ContestantNumber>>{{104, 101},
                                                  {102, 105},
                                                  {103},
                                                  {},
                                                  {106},
                                                  {107},
                                                  {108, 113, 114},
                                                  {109},
                                                  {110},
                                                  {111, 112}}) {
    placeGroup(contest, group++, speakers);
  }
  contest.contestantNames[116] = "";
  contest.classes.officialLetter[2] = 'N';
  contest.scores[104][2] = {'N', 50, 47, 0};
  contest.scores[101][2] = {'Z', 0, 8, 0};
  contest.scores[108][2] = {'A', 33, 39, 0};
  return contest;
}

// 114, the third speaker of group 7, is not on the sheets: they end where the first group ends.
TEST(ReasonsSheet, ShowsPlacingsOrScoresInBandsOfReasonsClassesOnly) {
  Contest contest = twoBandContest();
  const std::string scores = reasonsSheet(contest, ReasonsSheet::verification, 2).value_or("");
  expectApproved(reasonsSheet(contest, ReasonsSheet::order, 2).value_or("") +
                     scores.substr(0, scores.find(kPageBreakLine)),
                 "reasons/sheets_of_ten_groups.txt");
  for (const std::int32_t index : {-1, 0, 1, 8}) {
    EXPECT_EQ(reasonsSheet(contest, ReasonsSheet::order, index).has_value(), index == 1) << index;
  }
  contest.reasonsOrder.reset(0, 10);
  EXPECT_FALSE(reasonsSheet(contest, ReasonsSheet::order, 1));
}

// Three classes in bands of five: in the room form turn i of group c is class (6i + c) mod 3. In
// the plain form the first groups of a band and its last are enough.
TEST(ReasonsOrderReport, ShowsOrderUnassignedAndClassOrderInBands) {
  const Contest contest = twoBandContest();
  static const std::regex between("  Reasons Group  [34789] .*\n.*\n.*\n\n");
  const std::string plain = reasonsOrderReport(contest, ReasonsOrderForm::plain);
  expectApproved(
      std::regex_replace(plain, between, "") + reasonsOrderReport(contest, ReasonsOrderForm::room),
      "reasons/reasons_orders.txt");
}

TEST(ReasonsOrderReport, EndsAtAGapInTheFirstRowAndNeedsNoReasonsClasses) {
  Contest gap = reasonsContest(1, 0, 2);
  placeGroup(gap, 0, {kNobody, 101});
  const std::string report = reasonsOrderReport(gap, ReasonsOrderForm::plain);
  const std::size_t grid = report.find("   ----- \n") + 10;
  EXPECT_EQ(report.substr(grid),
            "\n\t\tContestants Not Assigned in Reasons Order\n"
            "     102 - Taker 102\n\n\n"
            "Reasons Class Order\n-------------------\n\n\n\n");
}

// Rows end with their own band, whatever the groups on either side of it have.
TEST(ReasonsOrderReport, HasNoBlankRowsBesideFullerBands) {
  Contest contest = reasonsContest(17, 1, 17);
  for (std::int32_t g = 0; g < 17; ++g) placeGroup(contest, g, {101 + g});
  contest.reasonsOrder.setCell(1, 6, 118);   // the first group of the second band
  contest.reasonsOrder.setCell(1, 11, 119);  // its last group
  const std::string report = reasonsOrderReport(contest, ReasonsOrderForm::plain);
  EXPECT_EQ(report.find("\n" + std::string(5 * 9, ' ')), std::string::npos);
}

}  // namespace

}  // namespace scorvane
