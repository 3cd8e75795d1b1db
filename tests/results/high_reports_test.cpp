// The reports of the best individuals and teams, and the summary of everybody's totals.
#include <gtest/gtest.h>

#include <limits>
#include <regex>
#include <sstream>

#include "output/print_layout.h"
#include "results/high_reports.h"
#include "results/rankings.h"
#include "results/tie_breakers.h"
#include "results/total_summary_report.h"
#include "results/total_summary_table.h"
#include "tests/support/approved.h"
#include "tests/support/contest_builder.h"

namespace scorvane {

namespace {

ReportRequest twenty(ScoreKind kind, ClassSet classes, const std::string& title = "") {
  return {.kind = kind, .classes = std::move(classes), .numToReport = 20, .title = title};
}

// In the overall ranking Cat and the nameless 106 are equal up to the third value, Bob and Ann up
// to the second, Dan has the same score only, and Eve, who has nothing, ties with the zeros behind
// the list. In the reasons ranking the lower placings come first, then the higher overall score.
TEST(HighIndividualReport, ShowsTheValuesThatSplitEachTie) {
  ContestBuilder builder;
  builder.addClass({}).addClass({.reasons = true});
  builder.team("A team of thirty-one characters", "Coach Hill", {"Bob", "Ann", "Dan", "Cat"});
  builder.contestant("Eve has a name of thirty-one ch").team("Boone", "", {""});
  builder.scores(101, {{40}, {45, 40}}).scores(102, {{45}, {40, 40}});
  builder.scores(103, {{46}, {40, 39}}).scores(104, {{50}, {50}});
  builder.scores(105, {{0}, {0}}).scores(106, {{49}, {51}});
  expectApproved(highIndividualReport(builder.contest, twenty(ScoreKind::overall, {0, 1})) +
                     highIndividualReport(builder.contest, twenty(ScoreKind::reasons, {0, 1})),
                 "results/high_individual_ties.txt");
}

// Fay, the last one listed, is compared with zeros, not with the nameless 107 who has her score.
TEST(HighIndividualReport, OfACategoryShowsUpToThreeValues) {
  ContestBuilder builder;
  builder.addClass({}).addClass({.reasons = true}).addClass({.reasons = true});
  builder.team("Adams", "", {"Ann", "Bob", "Cat", "Dan", "Eve"});
  builder.scores(101, {{10}, {30, 20}, {10, 10}}).scores(102, {{11}, {30, 20}, {10, 10}});
  builder.scores(103, {{10}, {30, 20}, {0, 11}}).scores(104, {{50}, {29, 21}, {50, 0}});
  builder.scores(105, {{50}, {50, 1}, {50, 50}});
  builder.contestant("Fay").contestant("").scores(106, {{1}, {40}}).scores(107, {{0}, {40}});
  expectApproved(highIndividualReport(builder.contest, twenty(ScoreKind::overall, {1}, "Sheep")),
                 "results/high_individual_category.txt");
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
  const auto request = wholeContestRequest(builder.contest, ScoreKind::placings);
  expectApproved(highTeamReport(builder.contest, request), "results/high_team_members.txt");
}

// The last team ties with the zeros behind the list. At the end nobody counts, so that all are
// equal, and one is asked for.
TEST(HighTeamReport, KeepsTheUnevenSpacingOfEachOrdering) {
  ContestBuilder builder;
  builder.members(1, 1, 1).addClass({}).addClass({.reasons = true}).addClass({.reasons = true});
  for (const char* name : {"A", "B", "C", "D", "E"}) builder.team(name, "", {"Ann"});
  builder.scores(101, {{0}, {30, 20}, {20, 10}}).scores(102, {{1}, {30, 20}, {24, 5}});
  builder.scores(103, {{1}, {30, 20}, {23, 5}}).scores(104, {{0}, {31, 19}, {23, 6}});
  builder.scores(105, {{12}, {0}, {0}});
  std::string reports;
  for (const auto& request : {twenty(ScoreKind::overall, {0, 1, 2}),
                              twenty(ScoreKind::overall, {1}), twenty(ScoreKind::reasons, {1})}) {
    reports += highTeamReport(builder.contest, request);
  }
  builder.contest.settings.numToScore = 2;
  builder.contest.settings.numToReport = 1;
  reports +=
      highTeamReport(builder.contest, wholeContestRequest(builder.contest, ScoreKind::overall));
  // The line of a coach is as it is above.
  static const std::regex coach(" +Coach: +\n\n");
  expectApproved(std::regex_replace(reports, coach, ""), "results/high_team_ties.txt");
}

TEST(HighReports, ListTheNumberOrPercentageAskedForButOneRowAtLeast) {
  ContestBuilder builder;
  builder.addClass({});
  for (int i = 0; i < 18; ++i) {
    builder.team("Team " + std::to_string(i), "", {"Ann"}).scores(101 + i, {{50 - i}});
  }
  struct Case {
    std::int32_t number;
    bool percent;
    std::ptrdiff_t rows;
  };
  for (const auto& [number, percent, rows] :
       {Case{0, false, 1}, Case{-5, false, 1}, Case{3, false, 3}, Case{2147483647, false, 18},
        Case{25, true, 4}, Case{5, true, 1}, Case{100, true, 18}, Case{2147483647, true, 18}}) {
    builder.contest.settings.numToReport = number;
    builder.contest.settings.reportPercent = percent;
    const auto request = wholeContestRequest(builder.contest, ScoreKind::overall);
    const std::string individuals = highIndividualReport(builder.contest, request);
    const std::string teams = highTeamReport(builder.contest, request);
    EXPECT_EQ(std::count(individuals.begin(), individuals.end(), '\n') - 4, rows) << number;
    EXPECT_EQ((std::count(teams.begin(), teams.end(), '\n') - 4) / 3, rows) << number;
  }
}

// Every name has forty letters of its own.
TEST(HighReports, CutNamesToTheirColumns) {
  const auto letters = [](char letter, std::size_t count = 40) {
    return std::string(count, letter);
  };
  ContestBuilder builder;
  builder.members(2, 3, 1).addClass({.name = letters('D')}).categories({letters('K')});
  builder.team(letters('T'), letters('C'), {letters('A'), letters('B'), letters('X')});
  builder.scores(101, {{50}}).scores(102, {{40}});
  const auto request = wholeContestRequest(builder.contest, ScoreKind::overall);
  const std::string reports = highIndividualReport(builder.contest, request) +
                              highTeamReport(builder.contest, request) +
                              totalSummaryReport(builder.contest);
  for (const std::string& cut :
       {"  " + letters('A', 30) + "  " + letters('T', 30) + "  ",
        "  " + letters('T', 21) + "  " + letters('A', 25) + " (", "  " + letters('B', 25) + " (",
        "Coach: " + letters('C', 30) + " ", letters('D', 38) + "  " + letters('K', 30) + "\n",
        "Team:  " + letters('T', 30) + "\n    Coach:  " + letters('C', 30) + "\n",
        " | " + letters('K', 16) + " | ", "101 " + letters('A', 20) + " | ",
        "103 " + letters('X', 16) + " alt | "}) {
    EXPECT_NE(reports.find(cut), std::string::npos) << cut << '\n' << reports;
  }
}

// Of 52 classes the last two do not count: Ann has 49 times 1 and once 50.
TEST(CustomReport, TakesTheFirstFiftyClassesAndCutsTheTitle) {
  ContestBuilder builder;
  builder.team("Adams", "", {"Ann", "Bob"});
  ReportRequest request = twenty(ScoreKind::placings, {}, std::string(500, 'x'));
  for (std::int32_t k = 0; k < 52; ++k) {
    builder.addClass({});
    builder.contest.scores[101][k].placingScore = k == 49 ? 50 : 1;
    request.classes.push_back(k);
  }
  const std::string report = customReport(builder.contest, request);
  EXPECT_NE(report.find("Adams                              99\n"), std::string::npos) << report;
  EXPECT_EQ(report.find('\n'), std::string("High Individual Placings ").size() + 499);
  request.team = true;
  EXPECT_TRUE(customReport(builder.contest, request).starts_with("High Team Placings xxx"));
}

// Asked for nobody, the report ends with the leader: also with one who has no name.
TEST(HighIndividualReport, OfZeroRowsEndsWithTheLeader) {
  ContestBuilder builder;
  builder.addClass({}).team("Adams", "", {"Ann", ""}).scores(101, {{10}}).scores(102, {{50}});
  ReportRequest request = wholeContestRequest(builder.contest, ScoreKind::overall);
  request.numToReport = 0;
  EXPECT_TRUE(individualRows(builder.contest, request).empty());
  request.numToReport = 1;
  EXPECT_EQ(individualRows(builder.contest, request).size(), 1U);
}

// Two members count: of Adams Ann and the empty slot 104, whose scores are of a deleted contestant,
// but not the alternate Bob. Class 3 names a category that does not exist. Eve has no team; the
// nameless 107 is nowhere.
TEST(TotalSummaryReport, ShowsScoresTotalsAndStatistics) {
  ContestBuilder builder;
  builder.members(2, 3, 2).categories({"Beef", "Unused", "Sheep and Market Goats"});
  builder.addClass({.name = "Angus Heifers", .reasons = true, .category = 0});
  builder.addClass({.name = "Market Lambs", .questions = true, .category = 2});
  builder.addClass({.name = "Steers", .category = 3});
  builder.team("Boone", "", {"Cat", "Dan"}).team("Adams", "Coach Hill", {"Ann", "", "Bob"});
  builder.contestant("Eve").contestant("");
  builder.scores(101, {{-2, 0, 0}, {-2, 0, 0}, {-2, 0, 0}}).scores(102, {{50, 45}, {44, 0, 40}});
  builder.scores(103, {{49, 50}, {39, 0, 39}, {0}}).scores(104, {{10, 11}, {12, 0, 13}, {14}});
  builder.scores(105, {{50, 50}, {50, 0, 50}, {50}}).scores(106, {{45, 40}, {0, 0, 20}, {30}});
  expectApproved(totalSummaryReport(builder.contest), "results/total_summary.txt");
}

// A page has room for 58 lines. One more band of columns than 19 classes need is too much for it.
TEST(TotalSummaryReport, KeepsLinesNarrowAndTeamsWhole) {
  constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
  std::size_t widest = 0;
  for (const ContestantNumber first : {101, 2147483000}) {
    for (int count = 1; count <= 30; ++count) {
      ContestBuilder builder;
      ContestSettings& settings = builder.contest.settings;
      settings.startNum = settings.nextContestantNum = first;
      settings.numToScore = first == 101 ? 3 : first;
      for (int k = 0; k < count; ++k) {
        builder.addClass({.reasons = k % 2 == 0, .questions = k % 3 == 0});
      }
      const std::string coach = "Twenty letters so far";
      builder.team("Adams", coach, {"A"}).team("Boone", coach.substr(0, 20), {"B"});
      if (first > 101) builder.scores(first, {{kLeast, kLeast, kLeast}});
      const std::string report = totalSummaryReport(builder.contest);
      std::istringstream lines(report);
      for (std::string line; std::getline(lines, line);) {
        if (line.find("Coach:  ") == std::string::npos) widest = std::max(widest, line.size());
      }
      EXPECT_NE(report.find("\n    Coach:  " + coach + "\n"), std::string::npos);
      EXPECT_NE(
          report.find("Boone                                   Coach:  Twenty letters so fa\n"),
          std::string::npos);
      // The totals of two classes fit into a band of their own, but not behind the classes.
      if (first == 101 && count == 2) {
        EXPECT_NE(report.find("  | none "), std::string::npos) << report;
      }
      std::int64_t page = 0;
      std::int64_t pageOfTeam = 0;
      for (const PrintOperation& operation : layOutPrint(report, {}, count < 20 ? 58 : 200)) {
        if (std::holds_alternative<print_operation::StartPage>(operation)) ++page;
        const auto* line = std::get_if<print_operation::Text>(&operation);
        if (line == nullptr) continue;
        if (line->text.starts_with("     Team:")) pageOfTeam = page;
        if (line->text.find(" Team Total  ") == std::string::npos) continue;
        EXPECT_EQ(pageOfTeam, page) << first << ", " << count;
      }
    }
  }
  EXPECT_EQ(widest, 80U);
}

TEST(TotalSummaryReport, HandlesAnEmptyContestAndRefusesAnAbsurdOne) {
  ContestBuilder builder;
  EXPECT_NE(totalSummaryReport(builder.contest).find("All Contestants:  0\n"), std::string::npos);
  builder.contest.teams["Adams"].members.assign(9000000, 101);
  EXPECT_NE(totalSummaryReport(builder.contest).find("too large for this report.\n"),
            std::string::npos);
}

TEST(ScoreStatistics, CountMarksAndRoundByTheFirstDecimalToTwoDigits) {
  ScoreStatistics all;
  for (const std::int32_t score : {50, 49, 45, 44, 40, 39, 0, -2}) all.add(score);
  EXPECT_EQ((std::array{all.contestants, all.sum, all.at50, all.from45, all.from40}),
            (std::array<std::int64_t, 5>{8, 265, 1, 3, 5}));
  using Case = std::array<std::int64_t, 3>;
  for (const auto& [sum, count, shown] :
       {Case{0, 0, 0}, Case{9, 2, 5}, Case{89, 20, 4}, Case{4449, 1000, 4}, Case{200, 3, 67},
        Case{100, 3, 33}, Case{99, 1, 99}, Case{995, 10, 99}, Case{-12, 10, -1}}) {
    EXPECT_EQ(roundedToTwoDigits(sum, count), shown) << sum << " / " << count;
  }
}

}  // namespace

}  // namespace scorvane
