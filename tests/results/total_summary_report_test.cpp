#include "results/total_summary_report.h"

#include <gtest/gtest.h>

#include <sstream>

#include "results/score_statistics.h"
#include "results/team_ranking.h"
#include "results/total_summary_table.h"
#include "tests/support/approved.h"
#include "tests/support/contest_builder.h"

namespace {

std::vector<std::size_t> barsOf(const std::string& line) {
  std::vector<std::size_t> bars;
  for (std::size_t at = line.find('|'); at != std::string::npos; at = line.find('|', at + 1)) {
    bars.push_back(at);
  }
  return bars;
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

TEST(TotalSummaryReport, SplitsClassesIntoBandsOfLinedUpColumns) {
  ContestBuilder builder;
  for (int k = 0; k < 30; ++k) {
    builder.addClass({.reasons = k % 2 == 0, .questions = k % 3 == 0});
  }
  builder.team("Adams", "Coach Hill", {"Ann"}).scores(101, {{-2, 5}, {0}, {2147483647}});
  builder.contest.contestantNames[101] = "A name that is longer than thirty characters";
  std::vector<std::size_t> barsAbove;
  std::vector<int> classesShown;
  std::istringstream lines(totalSummaryReport(builder.contest));
  for (std::string line; std::getline(lines, line);) {
    EXPECT_LE(line.size(), 132U);
    const std::vector<std::size_t> bars = barsOf(line);
    if (!bars.empty() && !barsAbove.empty()) {
      EXPECT_EQ(bars, barsAbove) << line;
    }
    if (line.empty() || !bars.empty()) barsAbove = bars;
    if (line.find(" Class | ") == std::string::npos) continue;
    std::istringstream words(line);
    for (std::string word; words >> word;) {
      if (word.find_first_not_of("0123456789") == std::string::npos) {
        classesShown.push_back(std::stoi(word));
      }
    }
  }
  std::vector<int> expected(60);  // under the team and under all contestants
  for (int k = 0; k < 60; ++k) expected[static_cast<std::size_t>(k)] = k % 30 + 1;
  EXPECT_EQ(classesShown, expected);
}

// Every total is what the high individual and high team reports rank by.
TEST(TotalSummaryReport, AgreesWithTheRankings) {
  const Contest contest = contestOfFile("samples/state.scv");
  const SummaryTable table = *SummaryTable::of(contest);
  std::size_t compared = 0;
  const auto compare = [&](std::size_t column, ScoreKind kind, const ClassSet& classes) {
    const auto totals = contestantTotals(contest, kind, classes);
    for (const SummaryRow& row : table.rows()) {
      std::size_t position = 0;
      EXPECT_EQ(table.cells(row.firstCell)[column],
                totalsOf(contest, totals, row.number, position).score);
      ++compared;
    }
    for (const auto& [team, values] : rankTeams(contest, totals, TieOrder::overall)) {
      const auto shown = std::find_if(
          table.teams().begin(), table.teams().end(),
          [&name = team->first](const SummaryTeam& summary) { return summary.name == &name; });
      ASSERT_NE(shown, table.teams().end());
      EXPECT_EQ(table.cells(shown->firstTotal)[column], values.score);
    }
  };
  std::int32_t category = 0;
  for (const SummaryBlock& block : table.columns().blocks()) {
    ClassSet classes = allClasses(contest);
    if (block.kind == SummaryBlock::Kind::judgingClass) classes = {std::stoi(block.title) - 1};
    if (block.kind == SummaryBlock::Kind::category) {
      std::erase_if(classes, [&](auto k) { return contest.classes.category(k) != category; });
      ++category;
    }
    for (std::size_t i = 0; i < block.headings.size(); ++i) {
      const std::string heading = block.headings[i];
      const ScoreKind kind = heading == "PLC"   ? ScoreKind::placings
                             : heading == "RSN" ? ScoreKind::reasons
                             : heading == "QUE" ? ScoreKind::questions
                                                : ScoreKind::overall;
      compare(block.firstColumn + i, kind, classes);
    }
  }
  EXPECT_GT(compared, 5000U);
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
  for (const Case& example : {Case{0, 0, 0}, Case{9, 2, 5}, Case{89, 20, 4}, Case{4449, 1000, 4},
                              Case{45, 10, 5}, Case{200, 3, 67}, Case{100, 3, 33}, Case{99, 1, 99},
                              Case{995, 10, 99}, Case{100, 1, 99}, Case{-12, 10, -1}}) {
    EXPECT_EQ(roundedToTwoDigits(example.sum, example.count), example.shown)
        << example.sum << " / " << example.count;
  }
}

TEST(ScoreStatistics, CountAScoreForEveryMarkItReaches) {
  ScoreStatistics statistics;
  for (const std::int32_t score : {50, 49, 45, 44, 40, 39, 0, -2}) statistics.add(score);
  EXPECT_EQ(statistics.contestants, 8);
  EXPECT_EQ(statistics.sum, 265);
  EXPECT_EQ(statistics.at50, 1);
  EXPECT_EQ(statistics.from45, 3);
  EXPECT_EQ(statistics.from40, 5);
}

}  // namespace
