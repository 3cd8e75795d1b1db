#include "model/contest.h"

#include <gtest/gtest.h>

#include <ctime>

#include "model/new_contest.h"
#include "model/numbering.h"

namespace {

TEST(Numbering, NextNumberFollowsTheLargest) {
  struct Case {
    std::vector<ContestantNumber> numbers;
    std::int32_t rounds;
    ContestantNumber next;
    char group;
  };
  for (const auto& [numbers, rounds, next, group] :
       {Case{{}, 0, 7, 'A'}, Case{{9, 18}, 2, 19, 'C'},  // 7 to 11, 12 to 16, into a third round
        Case{{-3}, -1, 1, '@'}}) {                       // numbers not above 0 do not count
    Contest contest;
    contest.settings.startNum = 7;
    contest.settings.nextGroupLetter = 'X';
    for (const ContestantNumber number : numbers) contest.contestantNames[number] = "";
    EXPECT_EQ(updateNextContestant(contest), rounds);
    EXPECT_EQ(contest.settings.nextContestantNum, next);
    EXPECT_EQ(contest.settings.nextGroupLetter, group);
  }
}

TEST(Contest, HasScoresOnceAnythingWasEntered) {
  for (const ScoreRecord& entered : {ScoreRecord{'A', 0, 0, 0}, {' ', 0, 1, 0}, {' ', 0, 0, 1}}) {
    Contest contest;
    contest.scores[101][0] = {};
    EXPECT_FALSE(hasScores(contest));
    contest.scores[101][1] = entered;
    EXPECT_TRUE(hasScores(contest));
  }
}

TEST(Contest, RecomputesPlacingScoresOfAllWhoHaveRecords) {
  Contest contest;
  contest.classes.add("Steers", false, false, 'A', {2, 3, 4}, 0);
  contest.classes.add("Hogs", true, false, ' ', {2, 3, 4}, 0);
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
