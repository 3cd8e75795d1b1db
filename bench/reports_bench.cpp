// The administrative and verification reports of large contests: all are to grow in step with
// contestants times classes.
#include <benchmark/benchmark.h>

#include "app/command_table.h"
#include "tests/support/contest_builder.h"

namespace scorvane {

namespace {

constexpr std::int32_t kClasses = 30;

// Teams of four; everyone has handed in every card, and every fifth class was given a zero.
Contest largeContest(std::int64_t contestants) {
  ContestBuilder builder;
  builder.contest.settings.numGroups = 26;
  for (std::int32_t k = 0; k < kClasses; ++k) {
    builder.addClass({"Class " + std::to_string(k + 1), k % 2 == 0, k % 3 == 0, 'C', {2, 5, 1}});
  }
  std::string cards(kClasses, 'D');
  for (std::size_t k = 0; k < cards.size(); k += 5) cards[k] = 'Z';
  for (std::int64_t n = 0; n < contestants; n += 4) {
    const ContestantNumber first = builder.contest.settings.nextContestantNum;
    builder.team("Team " + std::to_string(n), "Coach", {"Ann", "Bob", "Cy", "Dee"});
    for (ContestantNumber number = first; number < first + 4; ++number) {
      builder.placings(number, cards);
    }
  }
  return builder.contest;
}

void buildReport(benchmark::State& state, int commandId) {
  const Contest contest = largeContest(state.range(0));
  const Command* command = findCommand(commandId);
  ReportRequest request;
  request.round = 3;
  std::size_t bytes = 0;
  for ([[maybe_unused]] auto step : state) {
    const auto report = command->report()->build(contest, request);
    bytes = report.value_or("").size();
    benchmark::DoNotOptimize(bytes);
  }
  state.SetComplexityN(state.range(0));
  state.counters["bytes"] = static_cast<double>(bytes);
}

// Groups, contestants, teams, and the round and score grids.
const bool kRegistered = [] {
  for (const int id : {32838, 32853, 32840, 32862, 32846, 32847, 32848, 32845, 32849, 32850}) {
    const std::string name = "report/" + std::string(findCommand(id)->caption);
    benchmark::RegisterBenchmark(name.c_str(), buildReport, id)
        ->Arg(1000)
        ->Arg(3000)
        ->Arg(10000)
        ->Unit(benchmark::kMillisecond)
        ->Complexity();
  }
  return true;
}();

}  // namespace

}  // namespace scorvane
