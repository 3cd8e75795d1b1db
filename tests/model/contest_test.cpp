#include "model/contest.h"

#include <gtest/gtest.h>

#include <ctime>

#include "model/new_contest.h"
#include "model/numbering.h"

namespace {

TEST(Numbering, GroupsFollowNumbersRoundRobin) {
  struct Case {
    std::int32_t startNum, numGroups, number;
    char group;
  };
  for (const auto& [startNum, numGroups, number, group] : {
           Case{101, 5, 101, 'A'},
           Case{101, 5, 105, 'E'},
           Case{101, 5, 106, 'A'},
           Case{101, 5, 100, '@'},  // the remainder keeps its sign: one before 'A'
           Case{101, 5, 97, '='},
           Case{101, 5, 96, 'A'},
           Case{101, 0, 107, 'A'},
           Case{INT32_MAX, -1, INT32_MIN, 'A'},
       }) {
    ContestSettings settings;
    settings.startNum = startNum;
    settings.numGroups = numGroups;
    EXPECT_EQ(groupOfNumber(settings, number), group) << number;
  }
  EXPECT_EQ(makeGroupLetters(3), (std::vector<char>{'A', 'B', 'C'}));
  EXPECT_TRUE(makeGroupLetters(-1).empty());
}

TEST(Numbering, NextNumberFollowsTheLargest) {
  Contest contest;
  contest.settings.startNum = 7;
  EXPECT_EQ(updateNextContestant(contest), 0);
  EXPECT_EQ(contest.settings.nextContestantNum, 7);
  EXPECT_EQ(contest.settings.nextGroupLetter, 'A');
  contest.contestantNames[18] = "";
  contest.contestantNames[9] = "Ann";
  EXPECT_EQ(updateNextContestant(contest), 2);  // 7 to 11, 12 to 16, and into the third round
  EXPECT_EQ(contest.settings.nextContestantNum, 19);
  EXPECT_EQ(contest.settings.nextGroupLetter, 'C');
  contest.contestantNames.clear();
  contest.contestantNames[-3] = "Ben";  // numbers not above 0 do not count
  EXPECT_EQ(updateNextContestant(contest), -1);
  EXPECT_EQ(contest.settings.nextContestantNum, 1);
  EXPECT_EQ(contest.settings.nextGroupLetter, '@');
}

TEST(Contest, RecomputesPlacingScoresOfAllWhoHaveRecords) {
  Contest contest;
  contest.classes.add("Steers", false, false, 'A', {2, 3, 4}, 0);
  contest.classes.add("Hogs", true, false, ' ', {2, 3, 4}, 0);
  contest.contestantNames[101] = "Ann";
  contest.contestantNames[102] = "Ben";
  contest.scores[101][0] = {'X', 49, 40, 0};
  contest.scores[103][1] = {'A', 50, 0, 0};
  recomputeAllPlacingScores(contest);
  EXPECT_EQ(scoreRecord(contest, 101, 0), (ScoreRecord{'X', 20, 40, 0}));
  EXPECT_EQ(scoreRecord(contest, 103, 1), (ScoreRecord{'A', 0, 0, 0}));
  EXPECT_EQ(contest.scores.find(101)->size(), 2U);  // missing records are made
  EXPECT_FALSE(contest.scores.contains(102));
}

TEST(NewContest, IsDatedToday) {
  const std::time_t before = std::time(nullptr);
  const std::string date = newContest().settings.contestDate;
  const std::time_t after = std::time(nullptr);
  const auto dated = [](std::time_t time) {
    char text[40];
    return std::string(text, std::strftime(text, sizeof text, "%B %d, %Y", std::localtime(&time)));
  };
  EXPECT_TRUE(date == dated(before) || date == dated(after)) << date;
}

}  // namespace
