#include "model/contest_findings.h"

#include <gtest/gtest.h>

#include "tests/support/contest_builder.h"

namespace scorvane {

namespace {

// 104 was deleted and is given again; 103 is emptied, 105 deleted; 108 left with its team; 0 is a
// slot that a damaged file left out.
TEST(ContestFindings, TellWhatCountsForTheWrongOneOrForNobody) {
  ContestBuilder builder;
  builder.addClass({}).addClass({}).team("Elm", "", {"Ann", "Ben"}).team("Yew", "", {"", "Dee"});
  Contest& contest = builder.contest;
  for (const ContestantNumber number : {101, 103, 104, 105, 108}) {
    contest.scores[number][0] = {'B', 0, 0, 0};
    contest.scores[number][1] = {};
  }
  EXPECT_EQ(contestFindings(contest).size(), 1);  // 103
  contest.teams["Ash"].members = {104, 105, 106, 106, 101, 101, 0, 0};
  contest.contestantNames[106] = "";
  contest.scores[103][1] = {' ', 0, 30, 40};
  contest.scores[101][2] = contest.scores[104][2] = contest.scores[108][3] = {'Z', 0, 1, 0};
  contest.scores[102][3] = contest.scores[106][0] = {};
  const auto finding = [](FindingKind kind, ContestantNumber number, std::int32_t k,
                          std::int64_t count, std::vector<std::string> teams) {
    Finding told;
    told.kind = kind;
    told.number = number;
    told.classIndex = k;
    told.count = count;
    told.teams = std::move(teams);
    return told;
  };
  const std::vector<Finding> expected = {
      finding(FindingKind::numberInTwoTeams, 101, 0, 3, {"Ash", "Ash", "Elm"}),
      finding(FindingKind::numberInTwoTeams, 104, 0, 2, {"Ash", "Yew"}),
      finding(FindingKind::numberInTwoTeams, 106, 0, 2, {"Ash", "Ash"}),
      finding(FindingKind::scoresWithoutName, 103, 0, 3, {}),
      finding(FindingKind::scoresWithoutName, 105, 0, 1, {}),
      finding(FindingKind::recordWithoutClass, 0, 2, 4, {})};
  EXPECT_EQ(contestFindings(contest), expected);
}

}  // namespace

}  // namespace scorvane
