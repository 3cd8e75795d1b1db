#include "model/contest.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>
#include <string>
#include <vector>

#include "model/contest_findings.h"
#include "model/group_rotation.h"
#include "model/new_contest.h"
#include "model/numbering.h"
#include "tests/support/contest_builder.h"

namespace scorvane {

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

// Against a map that searches: without gaps, with gaps at either end, and at the ends of all
// numbers.
TEST(FlatMap, FindsNumbersAmongGaps) {
  for (const std::vector<ContestantNumber>& numbers : {std::vector{101, 102, 103, 104},
                                                       {7, 101, 102, 103},
                                                       {101, 102, 105, 200},
                                                       {101},
                                                       {INT32_MIN, -1, 0, INT32_MAX},
                                                       {}}) {
    FlatMap<ContestantNumber, int> map;
    for (const ContestantNumber number : numbers) map[number] = number;
    for (const ContestantNumber wanted : {INT32_MIN, -2, -1, 0, 1, 6, 7, 8, 100, 101, 102, 103, 104,
                                          105, 106, 199, 200, 201, INT32_MAX}) {
      const auto place = std::lower_bound(numbers.begin(), numbers.end(), wanted);
      EXPECT_EQ(map.lowerBound(wanted) - map.begin(), place - numbers.begin()) << wanted;
      const bool found = place != numbers.end() && *place == wanted;
      EXPECT_EQ(map.find(wanted), found ? &map[wanted] : nullptr) << wanted;
    }
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

// The column of a round as officials lay it out: the letters go to class `round` and those below
// it, and what does not fit wraps around to the first classes.
std::string laidOut(std::size_t classes, int groups, std::size_t round) {
  std::string column(classes, ' ');
  char letter = 'A';
  for (std::size_t k = round; k < classes && letter - 'A' < groups; ++k) column[k] = letter++;
  for (std::size_t k = 0; letter - 'A' < groups; ++k) column[k] = letter++;
  return column;
}

TEST(Rotation, TakesTheGroupsThroughTheClasses) {
  for (int classes = 0; classes <= 7; ++classes) {
    for (int groups = 0; groups <= classes; ++groups) {
      const Rotation rotation(classes, groups);
      for (int round = 0; round < classes; ++round) {
        std::string column;
        for (int k = 0; k < classes; ++k) {
          const char letter = rotation.groupAt(k, round);
          column += letter;
          if (letter == ' ') continue;
          EXPECT_EQ(rotation.classOf(letter, round), k);
          EXPECT_EQ(rotation.roundOf(letter, k), round);
        }
        EXPECT_EQ(column, laidOut(column.size(), groups, static_cast<std::size_t>(round)));
      }
    }
  }
}

TEST(Rotation, AnswersWhatIsNotInTheTable) {
  const Rotation rotation(3, 5);
  EXPECT_EQ(rotation.judgingGroups(), 3);
  for (const auto& [letter, index] : {std::pair{'D', 0}, {'@', 0}, {' ', 0}, {'A', 3}, {'A', -1}}) {
    EXPECT_EQ(rotation.classOf(letter, index), std::nullopt);
    EXPECT_EQ(rotation.roundOf(letter, index), 3);
    EXPECT_EQ(rotation.groupAt(index, -1), ' ');
    EXPECT_EQ(rotation.groupAt(3, index), ' ');
  }
  EXPECT_EQ(Rotation(3, -1).groupAt(0, 0), ' ');
  EXPECT_EQ(Rotation(300, 2147483647).groupAt(190, 0), '\xFF');
  EXPECT_EQ(Rotation(300, 2147483647).groupAt(191, 0), ' ');
}

}  // namespace

}  // namespace scorvane
