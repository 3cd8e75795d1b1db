#include "results/high_individual_report.h"

#include <gtest/gtest.h>

#include "tests/support/approved.h"
#include "tests/support/contest_builder.h"

namespace {

std::string reportOf(const Contest& contest, ScoreKind kind, ClassSet classes,
                     const std::string& title = "") {
  return highIndividualReport(contest, {.classes = std::move(classes),
                                        .kind = kind,
                                        .numToReport = 20,
                                        .percent = false,
                                        .title = title});
}

// In the overall ranking Cat and the nameless 106 are
// equal up to the third value, Bob and Ann up to the second, Dan has the same score only, and Eve,
// who has nothing, ties with the zeros behind the list. In the reasons ranking the lower placings
// come first, then the higher overall score.
TEST(HighIndividualReport, ShowsTheValuesThatSplitEachTie) {
  ContestBuilder builder;
  builder.addClass({}).addClass({.reasons = true});
  builder.team("A team of thirty-one characters", "Coach Hill", {"Bob", "Ann", "Dan", "Cat"});
  builder.contestant("Eve has a name of thirty-one ch").team("Boone", "", {""});
  builder.scores(101, {{40}, {45, 40}}).scores(102, {{45}, {40, 40}});
  builder.scores(103, {{46}, {40, 39}}).scores(104, {{50}, {50}});
  builder.scores(105, {{0}, {0}}).scores(106, {{49}, {51}});
  const Contest& contest = builder.contest;
  expectApproved(
      reportOf(contest, ScoreKind::overall, {0, 1}) + reportOf(contest, ScoreKind::reasons, {0, 1}),
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
  expectApproved(reportOf(builder.contest, ScoreKind::overall, {1}, "Sheep"),
                 "results/high_individual_category.txt");
}

TEST(HighIndividualReport, ListsTheNumberOrPercentageAskedForButOneRowAtLeast) {
  ContestBuilder builder;
  builder.addClass({});
  for (int i = 0; i < 18; ++i) builder.contestant("Ann").scores(101 + i, {{50 - i}});
  struct Case {
    std::int32_t number;
    bool percent;
    std::ptrdiff_t rows;
  };
  for (const Case& asked :
       {Case{0, false, 1}, Case{-5, false, 1}, Case{3, false, 3}, Case{2147483647, false, 18},
        Case{25, true, 4}, Case{5, true, 1}, Case{100, true, 18}, Case{2147483647, true, 18}}) {
    builder.contest.settings.numToReport = asked.number;
    builder.contest.settings.reportPercent = asked.percent;
    const std::string report = highIndividualReport(
        builder.contest, wholeContestRequest(builder.contest, ScoreKind::overall));
    EXPECT_EQ(std::count(report.begin(), report.end(), '\n') - 4, asked.rows) << asked.number;
  }
}

TEST(HighIndividualReport, OfTheCountySampleIsAsApproved) {
  const Contest contest = contestOfFile("samples/county.scv");
  expectApproved(highIndividualReport(contest, wholeContestRequest(contest, ScoreKind::overall)) +
                     reportOf(contest, ScoreKind::overall, {0, 3, 6}, "Beef"),
                 "results/county_high_individuals.txt");
}

}  // namespace
