#include "results/total_summary_report.h"

#include <gtest/gtest.h>

#include <cctype>
#include <map>
#include <sstream>

#include "results/score_statistics.h"
#include "results/team_ranking.h"
#include "results/total_summary_table.h"
#include "tests/support/approved.h"
#include "tests/support/contest_builder.h"

namespace {

// Checks that bars stand below one another within each band; gives the class numbers in the
// headings, and the length of the widest line.
std::pair<std::string, std::size_t> lookedThrough(const std::string& report) {
  std::string classes, barsAbove, word;
  std::size_t widest = 0;
  std::istringstream lines(report);
  for (std::string line; std::getline(lines, line);) {
    widest = std::max(widest, line.size());
    std::string bars = line;
    std::replace_if(
        bars.begin(), bars.end(), [](char c) { return c != '|'; }, ' ');
    bars.erase(bars.find_last_of('|') + 1);
    if (!bars.empty() && !barsAbove.empty()) {
      EXPECT_EQ(bars, barsAbove) << line;
    }
    if (line.empty() || !bars.empty()) barsAbove = bars;
    if (line.find(" Class | ") == std::string::npos) continue;
    std::istringstream words(line);
    while (words >> word) classes += std::isdigit(word[0]) != 0 ? word + " " : "";
  }
  return {classes, widest};
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

// Each class stands once under the team and once under all contestants.
TEST(TotalSummaryReport, SplitsClassesIntoBandsOfLinedUpColumns) {
  std::string expected;
  for (int count = 1; count <= 30; ++count) {
    ContestBuilder builder;
    for (int k = 0; k < count; ++k) {
      builder.addClass({.reasons = k % 2 == 0, .questions = k % 3 == 0});
    }
    builder.team("Adams", "", {"A name that is longer than thirty characters"});
    builder.scores(101, {{-2, 5}, {0}, {2147483647}});
    const auto [classes, widest] = lookedThrough(totalSummaryReport(builder.contest));
    EXPECT_LE(widest, 132U);
    expected += std::to_string(count) + " ";
    EXPECT_EQ(classes, expected + expected);
  }
}

// Every total is what the high individual and high team reports rank by.
TEST(TotalSummaryReport, AgreesWithTheRankings) {
  const Contest contest = contestOfFile("samples/state.scv");
  const SummaryTable table = *SummaryTable::of(contest);
  ASSERT_EQ(table.teams().size(), contest.teams.size());
  const auto compare = [&](std::size_t column, ScoreKind kind, const ClassSet& classes) {
    const auto totals = contestantTotals(contest, kind, classes);
    for (const SummaryRow& row : table.rows()) {
      std::size_t position = 0;
      EXPECT_EQ(table.cells(row.firstCell)[column],
                totalsOf(contest, totals, row.number, position).score);
    }
    for (const auto& [team, values] : rankTeams(contest, totals, TieOrder::overall)) {
      const auto index = static_cast<std::size_t>(std::distance(contest.teams.begin(), team));
      EXPECT_EQ(table.cells(table.teams()[index].firstTotal)[column], values.score) << team->first;
    }
  };
  const std::map<std::string, ScoreKind> kinds = {{"PLC", ScoreKind::placings},
                                                  {"RSN", ScoreKind::reasons},
                                                  {"QUE", ScoreKind::questions},
                                                  {"Total", ScoreKind::overall},
                                                  {"Overall", ScoreKind::overall}};
  std::int32_t category = 0;
  for (const SummaryBlock& block : table.columns().blocks()) {
    ClassSet classes = allClasses(contest);
    if (block.kind == SummaryBlock::Kind::judgingClass) classes = {std::stoi(block.title) - 1};
    if (block.kind == SummaryBlock::Kind::category) {
      std::erase_if(classes, [&](auto k) { return contest.classes.category(k) != category; });
      ++category;
    }
    for (std::size_t i = 0; i < block.headings.size(); ++i) {
      compare(block.firstColumn + i, kinds.at(block.headings[i]), classes);
    }
  }
  EXPECT_EQ(category, 4);
}

TEST(TotalSummaryReport, HandlesAnEmptyContestAndRefusesAnAbsurdOne) {
  ContestBuilder builder;
  EXPECT_NE(totalSummaryReport(builder.contest).find("All Contestants:  0\n"), std::string::npos);
  builder.contest.teams["Adams"].members.assign(9000000, 101);
  EXPECT_NE(totalSummaryReport(builder.contest).find("too large for this report.\n"),
            std::string::npos);
}

TEST(ScoreStatistics, RoundByTheFirstDecimalAndFitTwoDigits) {
  struct Case {
    std::int64_t sum, count, shown;
  };
  for (const auto& [sum, count, shown] :
       {Case{0, 0, 0}, Case{9, 2, 5}, Case{89, 20, 4}, Case{4449, 1000, 4}, Case{200, 3, 67},
        Case{100, 3, 33}, Case{99, 1, 99}, Case{995, 10, 99}, Case{-12, 10, -1}}) {
    EXPECT_EQ(roundedToTwoDigits(sum, count), shown) << sum << " / " << count;
  }
}

TEST(ScoreStatistics, CountAScoreForEveryMarkItReaches) {
  ScoreStatistics all;
  for (const std::int32_t score : {50, 49, 45, 44, 40, 39, 0, -2}) all.add(score);
  EXPECT_EQ((std::array{all.contestants, all.sum, all.at50, all.from45, all.from40}),
            (std::array<std::int64_t, 5>{8, 265, 1, 3, 5}));
}

}  // namespace
