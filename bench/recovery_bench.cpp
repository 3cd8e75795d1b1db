// What it costs to store one card, with and without a recovery copy, in contests of 12 classes. The
// cost must not grow with the contest. The disk's own flush is part of it: set XDG_DATA_HOME to a
// folder in memory to leave it out.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "entry/score_fields.h"
#include "session/open_contest.h"
#include "session/recovery.h"
#include "storage/contest_writer.h"
#include "tools/contest_maker.h"

namespace scorvane {

namespace {

void storeCards(benchmark::State& state, bool kept) {
  const std::filesystem::path folder =
      std::filesystem::temp_directory_path() / "scorvane-recovery-bench";
  std::filesystem::create_directories(folder);
  setenv("XDG_DATA_HOME", folder.c_str(), 0);
  ContestPlan plan;
  plan.contestants = static_cast<std::int32_t>(state.range(0));
  currentContest() = makeContest(plan);
  const std::string path = folder / "fair.scv";
  const std::string bytes = writeContest(currentContest());
  std::ofstream(path, std::ios::binary) << bytes;
  if (kept) {
    startKeepingWork(systemFiles());
    currentFileName() = path;
    contestHasFile(path, bytes);
  }
  const ContestantNumber number = currentContest().contestantNames.begin()->first;
  std::int32_t card = 0;
  const auto store = [&] {
    ++card;
    TypedScores typed;
    typed.letter = static_cast<PlacingLetter>('A' + card % 24);
    storeScores(currentContest(), number, card % 12, typed);
  };
  store();  // the first card writes the whole copy
  for ([[maybe_unused]] auto step : state) store();
  stopKeepingWork();
  std::filesystem::remove_all(folder);
}

}  // namespace

BENCHMARK_CAPTURE(storeCards, withoutCopy, false)->Arg(200)->Arg(10000);
BENCHMARK_CAPTURE(storeCards, withCopy, true)->Arg(200)->Arg(10000);

}  // namespace scorvane
