// What it costs to keep a score as it is stored, in contests of 12 classes. Without the disk's own
// flush it must not grow with the contest: SCORVANE_BENCH_FOLDER names a folder on another disk
// than that of temporary files, such as one in memory.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <vector>

#include "entry/score_fields.h"
#include "session/contest_file.h"
#include "session/open_contest.h"
#include "session/recovery.h"
#include "tests/support/temporary_folder.h"
#include "tools/contest_maker.h"

namespace scorvane {

namespace {

enum class Kept { no, yes };

// The median is what an operator feels; the first score after a save is left out, as it is rare.
void storeScore(benchmark::State& state, Kept kept) {
  using Clock = std::chrono::steady_clock;
  if (const char* disk = std::getenv("SCORVANE_BENCH_FOLDER")) ::setenv("TMPDIR", disk, 1);
  const TemporaryFolder folder;
  ::setenv("XDG_DATA_HOME", folder.path().c_str(), 1);
  startNewContest();
  if (kept == Kept::yes) startKeepingWork(systemFiles());
  ContestPlan plan;
  plan.contestants = static_cast<std::int32_t>(state.range(0));
  currentContest() = makeContest(plan);
  Contest& contest = currentContest();
  const auto store = [&](ContestantNumber number) {
    storeScores(contest, number, number % 12, {PlacingLetter('C'), {}, {}});
  };
  store(contest.contestantNames.begin()->first);
  std::vector<double> times;
  ContestantNumber number = 0;
  for ([[maybe_unused]] auto step : state) {
    const auto& names = contest.contestantNames;
    const auto start = Clock::now();
    store((names.begin() + number++ % static_cast<std::int32_t>(names.size()))->first);
    times.push_back(std::chrono::duration<double, std::milli>(Clock::now() - start).count());
  }
  std::nth_element(times.begin(), times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2),
                   times.end());
  state.counters["median_ms"] = times[times.size() / 2];
  stopKeepingWork();
  startNewContest();
}

BENCHMARK_CAPTURE(storeScore, not_kept, Kept::no)->Arg(200)->Arg(10000)->Iterations(1000);
BENCHMARK_CAPTURE(storeScore, kept, Kept::yes)->Arg(200)->Arg(10000)->Iterations(1000);

}  // namespace

}  // namespace scorvane
