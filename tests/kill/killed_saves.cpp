// killed_saves COUNT [SEED]: a process that saves one contest after the other is killed at a random
// moment, COUNT times. Each time the file must hold one of the contests, whole.
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <string>

#include "storage/contest_writer.h"
#include "storage/file.h"
#include "storage/safe_save.h"
#include "tests/support/temporary_folder.h"
#include "tools/contest_maker.h"

namespace {

std::string contestOf(std::int32_t contestants) {
  ContestPlan plan;
  plan.contestants = contestants;
  return writeContest(makeContest(plan));
}

struct Tally {
  int smaller = 0;
  int larger = 0;
  int cutShort = 0;  ///< kills that left a spare copy, so in the middle of a save
};

[[noreturn]] void saveForEver(const std::string& path, const std::string& a, const std::string& b) {
  for (;;) {
    if (!saveSafely(systemFiles(), path, a) || !saveSafely(systemFiles(), path, b)) _exit(1);
  }
}

void removeSpares(const TemporaryFolder& folder, const std::string& keep) {
  for (const auto& entry : std::filesystem::directory_iterator(folder.path())) {
    if (entry.path() != keep) std::filesystem::remove(entry.path());
  }
}

/// One process more, killed after some microseconds; false when what it left is not whole.
bool killOne(const TemporaryFolder& folder, const std::string& a, const std::string& b,
             useconds_t after, Tally& tally) {
  const std::string path = folder.file("contest.scv");
  const pid_t saver = ::fork();
  if (saver == 0) saveForEver(path, a, b);
  ::usleep(after);
  ::kill(saver, SIGKILL);
  int status = 0;
  ::waitpid(saver, &status, 0);
  if (!WIFSIGNALED(status)) return false;
  if (folder.count() > 1) ++tally.cutShort;
  removeSpares(folder, path);
  const std::string left = contentOf(path);
  tally.smaller += left == a ? 1 : 0;
  tally.larger += left == b ? 1 : 0;
  return left == a || left == b;
}

}  // namespace

int main(int count, char** arguments) {
  const int kills = count > 1 ? std::atoi(arguments[1]) : 300;
  const unsigned seed =
      count > 2 ? static_cast<unsigned>(std::atoi(arguments[2])) : std::random_device()();
  std::printf("seed %u\n", seed);
  std::mt19937 random(seed);
  const std::string a = contestOf(40);
  const std::string b = contestOf(2000);
  const TemporaryFolder folder;
  makeFile(folder.file("contest.scv"), a);
  Tally tally;
  for (int i = 0; i < kills; ++i) {
    if (killOne(folder, a, b, std::uniform_int_distribution<useconds_t>(0, 8000)(random), tally)) {
      continue;
    }
    std::printf("kill %d left a file that is not whole, or a save failed\n", i + 1);
    return 1;
  }
  std::printf("%d kills, %d of them within a save: %d old and %d new files, all whole\n", kills,
              tally.cutShort, tally.smaller, tally.larger);
  // A run that never met a save, or never got one done, has shown nothing.
  return tally.cutShort > 0 && tally.smaller > 0 && tally.larger > 0 ? 0 : 1;
}
