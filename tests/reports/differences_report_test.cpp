#include "reports/differences_report.h"

#include <gtest/gtest.h>

#include <sstream>

#include "model/roster.h"
#include "tests/support/approved.h"
#include "tests/support/contest_builder.h"

namespace scorvane {

namespace {

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
  now.classes.reasonsFlag[1] = true;
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
