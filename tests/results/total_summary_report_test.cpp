#include "results/total_summary_report.h"

#include <gtest/gtest.h>

#include <sstream>

#include "output/print_layout.h"
#include "results/total_summary_table.h"
#include "tests/support/approved.h"
#include "tests/support/contest_builder.h"

namespace scorvane {

namespace {

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
      const std::string name = "A name that is longer than thirty characters";
      builder.team("Adams", name, {name}).team(name, "Coach of twenty char", {"B"});
      builder.scores(first, {{-2, 5}, {0}, {2147483647, 2147483647}});
      const std::string report = totalSummaryReport(builder.contest);
      std::istringstream lines(report);
      for (std::string line; std::getline(lines, line);) widest = std::max(widest, line.size());
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
