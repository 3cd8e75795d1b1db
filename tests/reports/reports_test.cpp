// Every report of one small contest, and some of odd ones, held against texts worked out by hand.
#include <gtest/gtest.h>

#include <map>
#include <sstream>

#include "model/roster.h"
#include "reports/differences_report.h"
#include "reports/listing_reports.h"
#include "reports/round_reports.h"
#include "reports/verification_reports.h"
#include "tests/support/approved.h"
#include "tests/support/contest_builder.h"

namespace scorvane {

namespace {

// Numbers pass from three digits to four; slots are empty, names long, an alternate stands in each
// team; 99 lies below startNum and in no team; records are missing, and one is left of a class
// that does not exist. Bob's first class kept a reasons score from before it lost its reasons.
Contest checkedContest() {
  ContestBuilder builder;
  builder.contest.settings.startNum = builder.contest.settings.nextContestantNum = 998;
  builder.contest.settings.numGroups = 3;
  builder.members(2, 3, 2).categories({"Cattle", "Sheep and Goats of All Ages"});
  builder.addClass({"Does", false, false, 'Z', {0, 0, 0}, 7})
      .addClass({"Angus Heifers", true, false, 'C', {2, 5, 1}, 0})
      .addClass({"A name of more than thirty-eight characters", true, true, ' ', {0, 10, 4}, 1})
      .addClass({"Wethers", false, true, 'X', {3, 3, 3}, 1});
  builder
      .team("Oak", "Pat Oakley-of-the-Seven-Hills",
            {"Ann", "Bob of the Twenty-Six Letters and More", "Cy"})
      .team("Ash Creek Four-Corners Club", "Q", {"", "Dee", "Eve With a Long Name"});
  builder.placings(998, "ACBX").placings(999, "BZ").placings(1002, "D A");
  builder.scores(1000, {{50, 9, 8}, {46, 45, 7}, {30, 40, 39}, {-2, 0, 50}});
  Contest& contest = builder.contest;
  contest.contestantNames[99] = "Low";
  contest.contestantGroup[99] = '@';
  contest.scores[999][0].reasonsScore = 9;
  contest.scores[999][1].reasonsScore = 45;
  contest.scores[1003][4] = {'F', 50, 50, 50};
  return contest;
}

using Builder = std::string (*)(const Contest&);

template <std::int32_t round>
std::string verification(const Contest& contest) {
  return roundVerificationReport(contest, round);
}

const std::map<std::string, Builder> kReports = {{"classes", classesReport},
                                                 {"official_placings", officialPlacingsReport},
                                                 {"contestants", contestantsReport},
                                                 {"teams", teamReport},
                                                 {"round_assignments", roundAssignmentsReport},
                                                 {"group_assignments", groupAssignmentsReport},
                                                 {"round_verification", verification<1>},
                                                 {"verify_letters", verifyScoresReport},
                                                 {"zero_scores", zeroScoresReport},
                                                 {"zero_reasons", zeroReasonsReport},
                                                 {"zero_questions", zeroQuestionsReport},
                                                 {"verify_questions", verifyQuestionsScoresReport},
                                                 {"verify_placings", verifyPlacingsReport},
                                                 {"reasons_by_team", reasonsByTeamReport}};

TEST(Reports, OfTheCheckedContestReadAsApproved) {
  for (const auto& [name, build] : kReports) {
    expectApproved(build(checkedContest()), "reports/" + name + ".txt");
  }
}

// Ann 101, an empty slot 102, Cy 103, Dee 104; classes without reasons or questions.
Contest fourSlots(std::int32_t classes, std::int32_t groups) {
  ContestBuilder builder;
  builder.contest.settings.numGroups = groups;
  for (std::int32_t k = 0; k < classes; ++k) builder.addClass({});
  builder.team("Oak", "", {"Ann", "", "Cy", "Dee"});
  builder.placings(101, "BCD").placings(103, "EF").placings(104, "GHI");
  return builder.contest;
}

// Without classes or groups, and with more of something than sense.
TEST(Reports, OfOddContestsReadAsApproved) {
  std::string log;
  const auto add = [&](const std::string& what, const Contest& contest,
                       std::initializer_list<Builder> builders) {
    for (const Builder build : builders) log += "== " + what + "\n" + build(contest);
  };
  add("no classes", fourSlots(0, 2), {verification<0>});
  add("no reasons classes", fourSlots(2, 2), {zeroReasonsReport});
  add("more groups than classes", fourSlots(2, 4), {roundAssignmentsReport});
  Contest regrouped = fourSlots(2, 2);
  regrouped.groupLetters = {'X', 'Y'};
  regrouped.contestantGroup[103] = 'B';
  add("103 in the other group, groups renamed", regrouped, {verification<0>});
  add("less than no groups", fourSlots(1, -3), {groupAssignmentsReport, verifyScoresReport});

  Contest teams = fourSlots(1, 1);
  teams.teams = {{"Ash", {"", {103, 101}}}, {"Oak", {"", {101, 104}}}, {"Pine", {}}};
  add("a team without slots, 101 in two", teams, {contestantsReport, teamReport});
  teams.teams.clear();
  add("no teams", teams, {contestantsReport});

  Contest farApart;
  farApart.settings.numGroups = 2;
  farApart.settings.startNum = -2'000'000'000;
  farApart.contestantNames[102] = "Ann";
  farApart.contestantNames[103] = "";
  farApart.contestantNames[105] = "Cy";
  farApart.contestantNames[2'147'483'647] = "Last";
  add("numbers absurdly far apart", farApart, {groupAssignmentsReport});
  farApart.settings.startNum = 2'147'483'647;
  add("a single number", farApart, {groupAssignmentsReport});
  expectApproved(log, "reports/odd_contests.txt");
}

TEST(DifferencesReport, ListsEverythingThatDiffersWithinEightyColumns) {
  ContestBuilder builder;
  builder.members(2, 3, 2).categories({"Beef", "Sheep"});
  builder.contest.settings.contestName = "Tallgrass County Fair Judging Contest of 2025";
  builder.addClass({.name = "Steers", .reasons = true, .official = 'B'});
  builder.addClass({.name = "Ewes of " + std::string(70, 'x'), .questions = true, .category = 1});
  builder.addClass({.name = "Rams"}).addClass({.name = "Hogs"});
  builder.team("Elm Street Four-Corners Club of Judges", "Mr. Oak", {"Ann", "Bob", ""});
  builder.team("Ash", "", {"Cy of the Twenty-Six Letters and More", "Dee", "Eve"});
  builder.team("Yew", "Ms. Fir", {"Flo", "Gus", "Hal"});
  builder.placings(101, "AB").placings(102, "CC").placings(104, "DZ").placings(108, "  EE");
  builder.scores(105, {{30, 41, 0}, {50, 0, 12}});
  const Contest before = builder.contest;
  Contest& now = builder.contest;
  now.settings.contestName.back() = '6';
  now.settings.divisionName = "";
  now.settings.reportPercent = true;
  now.settings.numGroups = 4;
  now.categories[0] = "Cattle";
  now.classes.className[2] = "Yearling Rams";
  now.classes.officialLetter[0] = 'X';
  now.classes.cut3[0] = 6;
  now.classes.reasonsFlag[1] = now.classes.questionsFlag[3] = true;
  now.teams["Elm Street Four-Corners Club of Judges"].coach = "Mr. Oakley";
  removeTeam(now, "Yew");
  now.contestantNames[103] = "Zoe";
  now.contestantNames[105] = "Deedee";
  now.reasonsPlace[104] = {1, 4};
  now.scores[101][0].letter = 'T';
  now.scores[102][1].letter = ' ';
  now.scores[104][0].reasonsScore = 33;
  now.scores[104][1].placingScore = 7;
  now.scores[105][0].reasonsScore = 0;
  now.scores[105][1].questionsScore = 21;
  now.scores[103][3].letter = 'F';
  const std::string report = differencesReport(now, before, {"Now and Then", "Now", "Then"});
  expectApproved(report, "reports/differences.txt");
  const std::string same = differencesReport(now, now, {"Now and Now", "Here", "There"});
  EXPECT_TRUE(same.ends_with("\n       0  only under There\n\nNothing differs.\n")) << same;
  std::istringstream lines(report);
  for (std::string line; std::getline(lines, line);) EXPECT_LE(line.size(), 80U) << line;
}

}  // namespace

}  // namespace scorvane
