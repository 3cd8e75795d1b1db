#include "results/high_team_report.h"

#include <gtest/gtest.h>

#include "tests/support/approved.h"
#include "tests/support/contest_builder.h"

namespace {

// The first lines of the teams' blocks.
std::string teamRowsOf(const std::string& report) {
  std::string rows;
  for (std::size_t at = report.find("-\n") + 2; at < report.size();
       at = report.find("\n\n", at) + 2) {
    rows += report.substr(at, report.find('\n', at) - at) + "\n";
  }
  return rows;
}

HighReportRequest overClasses(ScoreKind kind, ClassSet classes) {
  return {
      .classes = std::move(classes), .kind = kind, .numToReport = 9, .percent = {}, .title = {}};
}

TEST(HighTeamReport, ShowsATeamWithItsRegularMembersAndCoach) {
  ContestBuilder builder;
  builder.members(3, 4, 2).addClass({});
  builder.team("Adams County Senior Team One", "Coach Hill", {"Ann", "", "Cat", "Alternate"});
  builder.team("Boone", "", {"", "Eve with a long name for the list", "", ""});
  builder.scores(101, {{30}}).scores(102, {{50}}).scores(103, {{-2}}).scores(104, {{50}});
  builder.scores(106, {{29}});
  HighReportRequest request = wholeContestRequest(builder.contest, ScoreKind::placings);
  const std::string memberEnd = std::string(25, ' ') + "\n";
  const std::string coachEnd = std::string(25, ' ') + "\n\n";
  EXPECT_EQ(
      highTeamReport(builder.contest, request),
      "High Team Placings  (scoring the top 2 per team)\n\n"
      "Place        Team                 Team Members                  Score   Tie Breaker(s)\n"
      "-----  ---------------------  --------------------------------  -----  -----------------\n"
      "  1    Adams County Senior T  Ann                       (  30)     30\n"
      "                              Cat                       (  -2)" +
          memberEnd + "         Coach: Coach Hill                    " + coachEnd +
          "  2    Boone                                                       29\n"
          "                              Eve with a long name for  (  29)" +
          memberEnd + "         Coach:                               " + coachEnd);
  request.numToReport = 49;
  request.percent = true;  // of two teams: none, but the winner is named
  EXPECT_EQ(highTeamReport(builder.contest, request).find("Boone"), std::string::npos);
}

TEST(HighTeamReport, KeepsTheUnevenSpacingOfEachOrdering) {
  ContestBuilder builder;
  builder.members(1, 1, 1).addClass({}).addClass({.reasons = true}).addClass({.reasons = true});
  for (const char* name : {"A", "B", "C", "D", "E"}) builder.team(name, "", {"Ann"});
  builder.scores(101, {{0}, {30, 20}, {20, 10}}).scores(102, {{1}, {30, 20}, {24, 5}});
  builder.scores(103, {{1}, {30, 20}, {23, 5}}).scores(104, {{0}, {31, 19}, {23, 6}});
  builder.scores(105, {{12}, {0}, {0}});  // the last one ties with the zeros behind the list
  EXPECT_EQ(teamRowsOf(highTeamReport(builder.contest, overClasses(ScoreKind::overall, {0, 1, 2}))),
            "  1    A                      Ann                       (  80)     80     30\n"
            "  2    B                      Ann                       (  80)     80     25\n"
            "  3    C                      Ann                       (  79)    79     25     53\n"
            "  4    D                      Ann                       (  79)    79     25     54\n"
            "  5    E                      Ann                       (  12)     12\n");
  EXPECT_EQ(teamRowsOf(highTeamReport(builder.contest, overClasses(ScoreKind::overall, {1}))),
            "  1    A                      Ann                       (  50)    50      20     30\n"
            "  2    B                      Ann                       (  50)    50      20     25 "
            "    80\n"
            "  3    C                      Ann                       (  50)    50      20     25 "
            "    79\n"
            "  4    D                      Ann                       (  50)    50      19\n"
            "  5    E                      Ann                       (   0)     0       0      0 "
            "    12\n");
  EXPECT_EQ(
      teamRowsOf(highTeamReport(builder.contest, overClasses(ScoreKind::reasons, {1}))),
      "  1    A                      Ann                       (  20)    20      50\n"
      "  2    C                      Ann                       (  20)    20      53\n"
      "  3    B                      Ann                       (  20)    20      54\n"
      "  4    D                      Ann                       (  19)    19\n"
      "  5    E                      Ann                       (   0)     0       0     12\n");
}

TEST(HighTeamReport, ShowsEveryTieBreakerWhenNobodyCounts) {
  ContestBuilder builder;
  builder.members(1, 1, 2).addClass({}).team("A", "", {"Ann"}).team("B", "", {"Bob"});
  builder.scores(101, {{30}}).scores(102, {{40}});
  const std::string overall =
      teamRowsOf(highTeamReport(builder.contest, overClasses(ScoreKind::overall, {0})));
  EXPECT_NE(overall.find("(  30)     0      0      0\n"), std::string::npos) << overall;
  const std::string category =
      teamRowsOf(highTeamReport(builder.contest, overClasses(ScoreKind::overall, {})));
  EXPECT_NE(category.find("(   0)     0       0      0      0\n"), std::string::npos) << category;
}

TEST(HighTeamReport, OfTheCountySampleIsAsApproved) {
  const Contest contest = contestOfFile("samples/county.scv");
  expectApproved(highTeamReport(contest, wholeContestRequest(contest, ScoreKind::overall)),
                 "results/county_high_team_overall.txt");
}

}  // namespace
