// Whole contests of 12 classes: reading and writing the file, ranking and the results reports. None
// may grow faster than n log n in contestants.
#include <benchmark/benchmark.h>

#include <chrono>
#include <map>
#include <string>
#include <variant>

#include "app/command_table.h"
#include "exchange/exports.h"
#include "model/contest_differences.h"
#include "model/contest_merge.h"
#include "storage/contest_reader.h"
#include "storage/contest_writer.h"
#include "tools/contest_maker.h"

namespace scorvane {

namespace {

const Contest& contestOf(std::int64_t contestants) {
  static std::map<std::int64_t, Contest> contests;
  const auto [place, isNew] = contests.try_emplace(contestants);
  if (isNew) {
    ContestPlan plan;
    plan.contestants = static_cast<std::int32_t>(contestants);
    place->second = makeContest(plan);
  }
  return place->second;
}

void load(benchmark::State& state) {
  const std::string bytes = writeContest(contestOf(state.range(0)));
  for ([[maybe_unused]] auto step : state) {
    const auto contest = readContest(bytes);
    benchmark::DoNotOptimize(&contest);
  }
  state.SetComplexityN(state.range(0));
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes.size()));
}

void save(benchmark::State& state) {
  const Contest& contest = contestOf(state.range(0));
  for ([[maybe_unused]] auto step : state) {
    const std::string bytes = writeContest(contest);
    benchmark::DoNotOptimize(bytes.data());
  }
  state.SetComplexityN(state.range(0));
}

// A contest in which every hundredth card differs, from the `first` one on.
Contest otherCards(const Contest& contest, std::size_t first) {
  Contest other = contest;
  std::size_t cards = 0;
  for (auto& [number, records] : other.scores) {
    for (auto& [judged, record] : records) {
      if (++cards % 100 == first) record.letter = record.letter == 'A' ? 'B' : 'A';
    }
  }
  return other;
}

// What both typed since they had the same file: nobody a card of the other one.
void merge(benchmark::State& state) {
  const Contest& base = contestOf(state.range(0));
  const Contest ours = otherCards(base, 0), theirs = otherCards(base, 50);
  for ([[maybe_unused]] auto step : state) {
    const Merge merged = mergeContests(base, ours, theirs);
    if (!merged.isSmooth()) state.SkipWithError("the cards should not meet");
    benchmark::DoNotOptimize(&merged);
  }
  state.SetComplexityN(state.range(0));
}

void compare(benchmark::State& state) {
  const Contest& here = contestOf(state.range(0));
  const Contest there = otherCards(here, 0);
  for ([[maybe_unused]] auto step : state) {
    const auto differences = contestDifferences(here, there);
    benchmark::DoNotOptimize(differences.scores.data());
  }
  state.SetComplexityN(state.range(0));
}

// The comparison of two files against the loading of both, in turns as machines are uneven: at most
// twice as long.
void compareFiles(benchmark::State& state) {
  using Clock = std::chrono::steady_clock;
  const std::string here = writeContest(contestOf(state.range(0)));
  const std::string there = writeContest(otherCards(contestOf(state.range(0)), 0));
  std::chrono::duration<double> loading{}, comparing{};
  for ([[maybe_unused]] auto step : state) {
    const auto start = Clock::now();
    const auto ours = readContest(here), theirs = readContest(there);
    const auto loaded = Clock::now();
    const auto differences = contestDifferences(std::get<Contest>(ours), std::get<Contest>(theirs));
    benchmark::DoNotOptimize(differences.scores.data());
    comparing += Clock::now() - loaded;
    loading += loaded - start;
  }
  state.counters["timesLoadingBoth"] = comparing / loading;
}

// Everybody's card as a page, and all scores as a workbook.
void publish(benchmark::State& state, bool asPage) {
  const Contest& contest = contestOf(state.range(0));
  std::size_t size = 0;
  for ([[maybe_unused]] auto step : state) {
    const std::string bytes = asPage ? resultsPage(contest, PageContent::cards)
                                     : spreadsheetBytes(contest, "scores.xlsx");
    size = bytes.size();
    benchmark::DoNotOptimize(size);
  }
  state.SetComplexityN(state.range(0));
  state.counters["bytes"] = static_cast<double>(size);
}

void report(benchmark::State& state, int commandId) {
  const Contest& contest = contestOf(state.range(0));
  const Command* command = findCommand(commandId);
  for ([[maybe_unused]] auto step : state) {
    const auto text = command->report()->build(contest, {});
    benchmark::DoNotOptimize(&text);
  }
  state.SetComplexityN(state.range(0));
}

void overSizes(benchmark::internal::Benchmark* bench) {
  bench->RangeMultiplier(10)->Range(100, 100000)->Unit(benchmark::kMicrosecond)->Complexity();
}

BENCHMARK(load)->Apply(overSizes);
BENCHMARK(save)->Apply(overSizes);
BENCHMARK(compare)->Apply(overSizes);
BENCHMARK(compareFiles)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK(merge)->Apply(overSizes);
BENCHMARK_CAPTURE(publish, page, true)->Apply(overSizes);
BENCHMARK_CAPTURE(publish, workbook, false)->Apply(overSizes);

// Every results report, and Contest Check.
const bool kRegistered = [] {
  for (const int id :
       {32796, 32799, 32798, 32827, 32801, 32804, 32803, 32830, 32800, 32810, 33015}) {
    const std::string name = "results/" + std::string(findCommand(id)->caption);
    overSizes(benchmark::RegisterBenchmark(name.c_str(), report, id));
  }
  return true;
}();

}  // namespace

}  // namespace scorvane
