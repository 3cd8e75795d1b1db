// Rosters of a sheet, four contestants to a team: planning and importing one into a contest of 12
// classes, as is done for each key typed in the sheet, against loading the contest that comes out.
#include <benchmark/benchmark.h>
#include <malloc.h>

#include <string>

#include "exchange/roster_plan.h"
#include "storage/contest_reader.h"
#include "storage/contest_writer.h"
#include "tools/contest_maker.h"
#include "tools/invented_names.h"

namespace scorvane {

namespace {

// Else the C library hands memory back to the system after some rounds and not after others.
void keepMemory() {
  constexpr int kMany = 1 << 30;
  mallopt(M_TRIM_THRESHOLD, kMany);
  mallopt(M_MMAP_THRESHOLD, kMany);
}

std::string sheetOf(std::int64_t contestants) {
  std::string sheet = "Team,First Name,Last Name,E-mail,Alternate,Coach\r\n";
  for (std::int64_t i = 0; i < contestants; ++i) {
    const auto pick = static_cast<std::size_t>(i);
    sheet.append(kCounties[pick / 4 % kCounties.size()]).append(" ").append(std::to_string(i / 4));
    sheet.append(",").append(kFirstNames[pick % kFirstNames.size()]).append(",");
    sheet.append(kLastNames[pick % kLastNames.size()]).append(",somebody@example.org,no,Pat\r\n");
  }
  return sheet;
}

Contest emptyContest() {
  ContestPlan plan;
  plan.contestants = 0;
  return makeContest(plan);
}

void planSheet(benchmark::State& state) {
  const std::string sheet = sheetOf(state.range(0));
  const Contest contest = emptyContest();
  for ([[maybe_unused]] auto step : state) {
    const RosterPlan plan = planRoster(sheet, contest);
    benchmark::DoNotOptimize(plan.teams.data());
  }
  state.SetComplexityN(state.range(0));
}

void tellPlan(benchmark::State& state) {
  const Contest contest = emptyContest();
  const RosterPlan plan = planRoster(sheetOf(state.range(0)), contest);
  for ([[maybe_unused]] auto step : state) {
    const auto lines = planLines(plan, contest);
    benchmark::DoNotOptimize(lines.data());
  }
  state.SetComplexityN(state.range(0));
}

void importSheet(benchmark::State& state) {
  keepMemory();
  const std::string sheet = sheetOf(state.range(0));
  const Contest empty = emptyContest();
  for ([[maybe_unused]] auto step : state) {
    Contest contest = empty;
    importRoster(contest, planRoster(sheet, contest));
    benchmark::DoNotOptimize(&contest);
  }
  state.SetComplexityN(state.range(0));
}

void loadImported(benchmark::State& state) {
  keepMemory();
  Contest contest = emptyContest();
  importRoster(contest, planRoster(sheetOf(state.range(0)), contest));
  const std::string bytes = writeContest(contest);
  for ([[maybe_unused]] auto step : state) {
    const auto loaded = readContest(bytes);
    benchmark::DoNotOptimize(&loaded);
  }
  state.SetComplexityN(state.range(0));
}

void overSizes(benchmark::internal::Benchmark* bench) {
  bench->RangeMultiplier(10)->Range(100, 100000)->Unit(benchmark::kMicrosecond)->Complexity();
}

BENCHMARK(planSheet)->Apply(overSizes);
BENCHMARK(tellPlan)->Apply(overSizes);
BENCHMARK(importSheet)->Apply(overSizes);
BENCHMARK(loadImported)->Apply(overSizes);

}  // namespace

}  // namespace scorvane
