#include "results/high_team_report.h"

#include <gtest/gtest.h>

#include "tests/support/approved.h"
#include "tests/support/contest_builder.h"

namespace {

std::string reportOf(const Contest& contest, ScoreKind kind, ClassSet classes) {
  return highTeamReport(
      contest,
      {.classes = std::move(classes), .kind = kind, .numToReport = 9, .percent = {}, .title = {}});
}

// Neither the empty slot 102, which kept a deleted contestant's scores, nor the alternate counts:
// 30 and 0 for the first team, 29 and 0 for the second.
TEST(HighTeamReport, ShowsATeamWithItsRegularMembersAndCoach) {
  ContestBuilder builder;
  builder.members(3, 4, 2).addClass({});
  builder.team("Adams County Senior Team One", "Coach Hill", {"Ann", "", "Cat", "Alternate"});
  builder.team("Boone", "", {"", "Eve with a long name for the list", "", ""});
  builder.scores(101, {{30}}).scores(102, {{50}}).scores(103, {{-2}}).scores(104, {{50}});
  builder.scores(106, {{29}});
  HighReportRequest request = wholeContestRequest(builder.contest, ScoreKind::placings);
  expectApproved(highTeamReport(builder.contest, request), "results/high_team_members.txt");
  request.percent = true;
  for (const std::int32_t ofTwoTeams : {50, 49}) {  // one; none, but the winner is named
    request.numToReport = ofTwoTeams;
    const std::string winner = highTeamReport(builder.contest, request);
    EXPECT_NE(winner.find("Adams"), std::string::npos);
    EXPECT_EQ(winner.find("Boone"), std::string::npos);
  }
}

// The last team ties with the zeros behind the list. At the end nobody counts,
// so that all are equal.
TEST(HighTeamReport, KeepsTheUnevenSpacingOfEachOrdering) {
  ContestBuilder builder;
  builder.members(1, 1, 1).addClass({}).addClass({.reasons = true}).addClass({.reasons = true});
  for (const char* name : {"A", "B", "C", "D", "E"}) builder.team(name, "", {"Ann"});
  builder.scores(101, {{0}, {30, 20}, {20, 10}}).scores(102, {{1}, {30, 20}, {24, 5}});
  builder.scores(103, {{1}, {30, 20}, {23, 5}}).scores(104, {{0}, {31, 19}, {23, 6}});
  builder.scores(105, {{12}, {0}, {0}});
  const Contest& contest = builder.contest;
  std::string reports = reportOf(contest, ScoreKind::overall, {0, 1, 2});
  reports += reportOf(contest, ScoreKind::overall, {1});
  reports += reportOf(contest, ScoreKind::reasons, {1});
  expectApproved(reports, "results/high_team_ties.txt");
  builder.contest.settings.numToScore = 2;
  const std::string nobodyCounts = reportOf(contest, ScoreKind::overall, {0, 1, 2});
  EXPECT_NE(nobodyCounts.find("(  12)     0      0      0\n"), std::string::npos) << nobodyCounts;
}

TEST(HighTeamReport, OfTheCountySampleIsAsApproved) {
  const Contest contest = contestOfFile("samples/county.scv");
  expectApproved(highTeamReport(contest, wholeContestRequest(contest, ScoreKind::overall)),
                 "results/county_high_team_overall.txt");
}

}  // namespace
