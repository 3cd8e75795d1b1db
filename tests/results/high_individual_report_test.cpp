#include "results/high_individual_report.h"

#include <gtest/gtest.h>

#include "tests/support/approved.h"
#include "tests/support/contest_builder.h"

namespace {

using Numbers = std::vector<ContestantNumber>;

// Rows behind heading and rule, each as place, name and what follows the team.
std::string rowsOf(const std::string& report) {
  std::string rows;
  const std::size_t rule = report.find("-\n");
  for (std::size_t at = rule + 2; at < report.size(); at = report.find('\n', at) + 1) {
    const std::string line = report.substr(at, report.find('\n', at) - at);
    rows.append(line, 4, 1).append(" ").append(line, 7, 3).append(line, 70).append("\n");
  }
  return rows;
}

// A class without and a class with reasons. 104 and the nameless 106 are equal up to the third
// value; 101 and 102 up to the second; 103 has the same score only; 105 has nothing.
ContestBuilder tiedContest() {
  ContestBuilder builder;
  builder.addClass({.name = "Angus Heifers"}).addClass({.name = "Market Lambs", .reasons = true});
  builder.team("Adams", "Coach Hill", {"Bob", "Ann", "Dan", "Cat"});
  builder.team("Boone", "", {"Eve", ""});
  builder.scores(101, {{40}, {45, 40}}).scores(102, {{45}, {40, 40}});
  builder.scores(103, {{46}, {40, 39}}).scores(104, {{50}, {50}});
  builder.scores(105, {{0}, {0}}).scores(106, {{49}, {51}});
  return builder;
}

TEST(HighIndividualReport, ShowsHeadingAndRowsInFixedColumns) {
  Contest contest = tiedContest().contest;
  contest.contestantNames[102] = "A name that is longer than thirty characters";
  contest.settings.numToReport = 1;
  EXPECT_EQ(highIndividualReport(contest, wholeContestRequest(contest, ScoreKind::overall)),
            "High Individual Overall \n\n"
            "Place  Contestant Name                 Team Name                       Score    Tie "
            "Breakers\n"
            "--------------------------------------------------------------------------------------"
            "-------\n"
            "    1  A name that is longer than thi  Adams                             125      40 "
            "    40\n");
}

TEST(HighIndividualReport, ShowsTheValuesThatSplitEachTie) {
  const Contest contest = tiedContest().contest;
  // Cat ties with the nameless contestant that follows, who is not listed. Eve, the last, ties
  // with the zeros behind the list.
  EXPECT_EQ(rowsOf(highIndividualReport(contest, wholeContestRequest(contest, ScoreKind::overall))),
            "1 Ann   125      40     40\n"
            "2 Bob   125      40     45\n"
            "3 Dan   125      39\n"
            "4 Cat   100       0     50\n"
            "5 Eve     0       0      0\n");
  // Lower placings in the reasons class first, then the higher overall score. Cat and Eve have no
  // reasons score; the nameless contestant ranks behind both, so Cat as the last listed one ties
  // with the zeros behind the list.
  EXPECT_EQ(rowsOf(highIndividualReport(contest, wholeContestRequest(contest, ScoreKind::reasons))),
            "1 Ann    40      40\n"
            "2 Bob    40      45\n"
            "3 Dan    39\n"
            "4 Eve     0       0\n"
            "5 Cat     0      50\n");
}

TEST(HighIndividualReport, OfACategoryShowsUpToThreeValues) {
  ContestBuilder builder;
  builder.addClass({}).addClass({.reasons = true}).addClass({.reasons = true});
  builder.team("Adams", "", {"Ann", "Bob", "Cat", "Dan", "Eve"});
  builder.scores(101, {{10}, {30, 20}, {10, 10}}).scores(102, {{11}, {30, 20}, {10, 10}});
  builder.scores(103, {{10}, {30, 20}, {0, 11}}).scores(104, {{50}, {29, 21}, {50, 0}});
  builder.scores(105, {{50}, {50, 1}, {50, 50}});
  HighReportRequest request = wholeContestRequest(builder.contest, ScoreKind::overall);
  request.classes = {1};
  request.title = "Sheep";
  const std::string report = highIndividualReport(builder.contest, request);
  EXPECT_EQ(report.substr(0, 29), "High Individual Overall Sheep");
  EXPECT_EQ(rowsOf(report),
            "1 Eve    51\n"
            "2 Dan    50      21\n"
            "3 Cat    50      20     31\n"
            "4 Bob    50      20     30     81\n"
            "5 Ann    50      20     30     80\n");
}

TEST(HighIndividualReport, ListsTheNumberOrPercentageAskedForButOneRowAtLeast) {
  ContestBuilder builder;
  builder.addClass({});
  for (int i = 0; i < 18; ++i) {
    builder.contestant("Ann").scores(101 + i, {{50 - i}});
  }
  struct Case {
    std::int32_t number;
    bool percent;
    std::ptrdiff_t rows;
  };
  for (const Case& asked : {Case{0, false, 1},
                            {-5, false, 1},
                            {3, false, 3},
                            {2147483647, false, 18},
                            Case{25, true, 4},
                            {5, true, 1},
                            {100, true, 18},
                            {2147483647, true, 18}}) {
    builder.contest.settings.numToReport = asked.number;
    builder.contest.settings.reportPercent = asked.percent;
    const std::string report = highIndividualReport(
        builder.contest, wholeContestRequest(builder.contest, ScoreKind::overall));
    EXPECT_EQ(std::count(report.begin(), report.end(), '\n') - 4, asked.rows) << asked.number;
  }
}

TEST(HighIndividualReport, NamesNoTeamForContestantsWithoutOne) {
  ContestBuilder builder;
  builder.addClass({}).contestant("Ann").scores(101, {{50}});
  const std::string report = highIndividualReport(
      builder.contest, wholeContestRequest(builder.contest, ScoreKind::questions));
  EXPECT_NE(report.find("    1  Ann                                                               "
                        "  0       0     50\n"),
            std::string::npos)
      << report;
}

TEST(HighIndividualReport, OfTheCountySampleIsAsApproved) {
  const Contest contest = contestOfFile("samples/county.scv");
  HighReportRequest beef = wholeContestRequest(contest, ScoreKind::overall);
  beef.classes = {0, 3, 6};
  beef.title = "Beef";
  expectApproved(highIndividualReport(contest, wholeContestRequest(contest, ScoreKind::overall)) +
                     highIndividualReport(contest, beef),
                 "results/county_high_individuals.txt");
}

}  // namespace
