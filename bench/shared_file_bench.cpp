// What a look at the contest's file costs when others have saved nothing. It must not grow with the
// contest.
#include <benchmark/benchmark.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <thread>

#include "session/open_contest.h"
#include "session/shared_file.h"
#include "storage/contest_writer.h"
#include "tools/contest_maker.h"

namespace scorvane {

namespace {

void lookAtFile(benchmark::State& state, std::chrono::seconds age) {
  ContestPlan plan;
  plan.contestants = static_cast<std::int32_t>(state.range(0));
  currentContest() = makeContest(plan);
  const std::filesystem::path path =
      std::filesystem::temp_directory_path() / "scorvane-shared-bench.scv";
  const std::string bytes = writeContest(currentContest());
  std::ofstream(path, std::ios::binary) << bytes;
  currentFileName() = path;
  knowFile(bytes);
  std::this_thread::sleep_for(age);
  takeInOthersWork();
  for ([[maybe_unused]] auto step : state) takeInOthersWork();
  std::filesystem::remove(path);
  currentFileName().clear();
}

}  // namespace

// Just saved it is read, as its time may hide a change.
BENCHMARK_CAPTURE(lookAtFile, justSaved, std::chrono::seconds(0))->Arg(10000)->Iterations(50);
BENCHMARK_CAPTURE(lookAtFile, unchanged, std::chrono::seconds(4))
    ->Arg(200)
    ->Arg(10000)
    ->Iterations(100000);

}  // namespace scorvane
