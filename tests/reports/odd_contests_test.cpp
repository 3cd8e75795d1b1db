// Reports of contests without classes, teams or groups, and with more of something than sense.
#include <gtest/gtest.h>

#include "reports/class_reports.h"
#include "reports/letter_report.h"
#include "reports/roster_reports.h"
#include "reports/round_reports.h"
#include "reports/team_score_reports.h"
#include "reports/zero_reports.h"
#include "tests/support/contest_builder.h"

namespace {

// Ann 101, an empty slot 102, Cy 103, Dee 104; classes without reasons or questions.
Contest fourSlots(std::int32_t classes, std::int32_t groups) {
  ContestBuilder builder;
  builder.contest.settings.numGroups = groups;
  for (std::int32_t k = 0; k < classes; ++k) builder.addClass({});
  builder.team("Oak", "", {"Ann", "", "Cy", "Dee"});
  builder.placings(101, "BCD").placings(103, "EF").placings(104, "GHI");
  return builder.contest;
}

void expectEnd(const std::string& report, const std::string& end) {
  ASSERT_GE(report.size(), end.size());
  EXPECT_EQ(report.substr(report.size() - end.size()), end);
}

const std::string kBlank(28, ' ');

TEST(OddContests, WithoutClassesTeamsOrContestantsShowHeadings) {
  Contest empty;
  empty.settings.numGroups = 2;
  expectEnd(classesReport(empty), "   Category    \n     ----- " + std::string(50, '-') + " " +
                                      std::string(15, '-') + "\n");
  expectEnd(officialPlacingsReport(empty), " -------- ------\n");
  EXPECT_EQ(roundAssignmentsReport(empty),
            "Round Assignments Report\n\n"
            "  Class                                                      Round\n"
            "   No.       Description                                    |\n"
            "  ----- --------------------------------------------------  |\n");
  expectEnd(groupAssignmentsReport(empty), "\n\t------- ------- \n\t\n");
  const std::string rule = std::string(28, '-') + "\n";
  EXPECT_EQ(verifyScoresReport(empty),
            "Verify Scores Report\n\n" + kBlank + "\n" + rule + rule + rule);
  EXPECT_EQ(verifyPlacingsReport(empty), "Verify Placings Report\n\n\n");
  expectEnd(contestantsReport(empty), "- ------------------------------\n");
  EXPECT_EQ(roundVerificationReport(fourSlots(0, 2), 0),
            "Round 1 Verification Report\n\n    A    |    B    |\n---------|---------|\n"
            "   101-B |   --- - |\n   103-E |   104-G |\n\n");
}

TEST(OddContests, WithoutReasonsClassesShowNobodyUnderARuleForAllClasses) {
  EXPECT_EQ(zeroReasonsReport(fourSlots(2, 2)),
            "Zero Reasons Report\n\n" + std::string(26, ' ') + "\n" + std::string(36, '-') + "\n");
}

TEST(OddContests, ListTeamsWithoutSlotsAndContestantsWithoutTeams) {
  Contest contest = fourSlots(1, 1);
  contest.teams = {{"Ash", {"", {103, 101}}}, {"Oak", {"", {101, 104}}}, {"Pine", {}}};
  expectEnd(contestantsReport(contest),
            "      101  A   Ann                            Ash                           \n"
            "      103  A   Cy                             Ash                           \n"
            "\n"
            "      104  A   Dee                            Oak                           \n");
  expectEnd(teamReport(contest),
            "     Pine                 \n          Coach:                     \n\n");
  contest.teams.clear();
  expectEnd(contestantsReport(contest), "      104  A   Dee" + std::string(58, ' ') + "\n");
}

TEST(OddContests, WithMoreGroupsThanClassesSaySo) {
  expectEnd(roundAssignmentsReport(fourSlots(2, 4)),
            " |  B |  A |\nMore groups than classes: groups from C on judge none.\n");
  EXPECT_EQ(roundVerificationReport(fourSlots(1, 2), 0),
            "Round 1 Verification Report\n\n    A    |    B    |\n---------|---------|\n"
            "   101-B |   --- - |\n   103-E |   104-G |\n\n"
            "More groups than classes: groups from B on judge none; "
            "the letters shown for them are those of class 1.\n");
}

TEST(OddContests, WithoutGroupsPutOneNumberOnALine) {
  for (const std::int32_t groups : {0, -3}) {
    const Contest contest = fourSlots(1, groups);
    expectEnd(groupAssignmentsReport(contest),
              "\n\n\t\n\t\n\t  101   \n\t  ---   \n\t  103   \n\t  104   \n\t\n");
    expectEnd(verifyScoresReport(contest), kBlank + " |  1 \n" + std::string(34, '-') + "\n");
  }
}

TEST(OddContests, LeaveRowsOutWhenNumbersAreAbsurdlyFarApart) {
  Contest contest;
  contest.settings.numGroups = 2;
  contest.settings.startNum = -2'000'000'000;
  contest.contestantNames[102] = "Ann";
  contest.contestantNames[105] = "Cy";
  contest.contestantNames[2'147'483'647] = "Last";
  expectEnd(groupAssignmentsReport(contest),
            "\n\t(2000000102 numbers without a contestant)\n"
            "\t  102     ---   \n"
            "\t  ---     105   \n"
            "\t(2147483540 numbers without a contestant)\n"
            "\t  ---   2147483647   \n\t\n");
  contest.settings.startNum = 2'147'483'647;
  expectEnd(groupAssignmentsReport(contest), "\n\t2147483647   \n");
}

}  // namespace
