// killed_saves COUNT [WAY [SEED]]: a process that saves one contest after the other is killed at a
// random moment, COUNT times. Each time the file must hold one of the contests, whole. The WAY is
// "beside" as usual; "two names" or "protected folder" for a file that is written in place because
// of that, and a spare copy must be whole while the file is not.
#include <grp.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

#include "storage/contest_writer.h"
#include "storage/file.h"
#include "storage/safe_save.h"
#include "tests/support/temporary_folder.h"
#include "tools/contest_maker.h"

namespace scorvane {

namespace {

std::string contestOf(std::int32_t contestants) {
  ContestPlan plan;
  plan.contestants = contestants;
  return writeContest(makeContest(plan));
}

struct Disk {
  TemporaryFolder folder;
  TemporaryFolder temporaryFolder;
  std::string way;
  std::string path = folder.file("contest.scv");
};

// A folder protects itself from everybody but the superuser.
constexpr uid_t kNobody = 65534;

void makeDisk(const Disk& disk, const std::string& content) {
  namespace fs = std::filesystem;
  makeFile(disk.path, content);
  if (disk.way == "two names") fs::create_hard_link(disk.path, disk.folder.file("twin.scv"));
  if (disk.way != "protected folder") return;
  fs::permissions(disk.path, fs::perms::all);
  fs::permissions(disk.folder.path(), fs::perms{0555});
  fs::permissions(disk.temporaryFolder.path(), fs::perms::all);
}

struct Tally {
  int smaller = 0;
  int larger = 0;
  int spares = 0;    ///< kills that left a spare copy, so in the middle of a save
  int restored = 0;  ///< kills that left the contest whole in the spare copy only
};

[[noreturn]] void saveForEver(const Disk& disk, const std::string& a, const std::string& b) {
  ::setenv("TMPDIR", disk.temporaryFolder.path().c_str(), 1);
  if (disk.way == "protected folder" && (::setgroups(0, nullptr) != 0 || ::setuid(kNobody) != 0)) {
    _exit(1);
  }
  for (;;) {
    if (!saveSafely(systemFiles(), disk.path, a) || !saveSafely(systemFiles(), disk.path, b)) {
      _exit(1);
    }
  }
}

/// The contents of the spare copies, which are removed.
std::vector<std::string> takeSpares(const Disk& disk) {
  std::vector<std::string> contents;
  for (const TemporaryFolder* folder : {&disk.folder, &disk.temporaryFolder}) {
    for (const auto& entry : std::filesystem::directory_iterator(folder->path())) {
      if (entry.path().extension() != ".tmp") continue;
      contents.push_back(contentOf(entry.path()));
      std::filesystem::remove(entry.path());
    }
  }
  return contents;
}

/// One process more, killed after some microseconds; false when what it left is not whole.
bool killOne(const Disk& disk, const std::string& a, const std::string& b, useconds_t after,
             Tally& tally) {
  const pid_t saver = ::fork();
  if (saver == 0) saveForEver(disk, a, b);
  ::usleep(after);
  ::kill(saver, SIGKILL);
  int status = 0;
  ::waitpid(saver, &status, 0);
  if (!WIFSIGNALED(status)) return false;
  const std::vector<std::string> spares = takeSpares(disk);
  tally.spares += spares.empty() ? 0 : 1;
  std::string left = contentOf(disk.path);
  if (disk.way != "beside" && left != a && left != b && !spares.empty()) {
    left = spares[0];
    makeFile(disk.path, left);
    ++tally.restored;
  }
  tally.smaller += left == a ? 1 : 0;
  tally.larger += left == b ? 1 : 0;
  return left == a || left == b;
}

// However fast the disk is today; a folder of one's own is as good as a protected one for that.
useconds_t timeOfTwoSaves(const Disk& disk, const std::string& a, const std::string& b) {
  using Clock = std::chrono::steady_clock;
  const std::string path = disk.temporaryFolder.file("contest.scv");
  auto fastest = Clock::duration::max();
  for (int i = 0; i < 5; ++i) {
    const auto start = Clock::now();
    if (!saveSafely(systemFiles(), path, b) || !saveSafely(systemFiles(), path, a)) return 0;
    fastest = std::min(fastest, Clock::now() - start);
  }
  return static_cast<useconds_t>(
      std::chrono::duration_cast<std::chrono::microseconds>(fastest).count());
}

}  // namespace

}  // namespace scorvane

int main(int count, char** arguments) {
  using namespace scorvane;
  const int kills = count > 1 ? std::atoi(arguments[1]) : 300;
  const unsigned seed =
      count > 3 ? static_cast<unsigned>(std::atoi(arguments[3])) : std::random_device()();
  std::printf("seed %u\n", seed);
  std::mt19937 random(seed);
  const std::string a = contestOf(40);
  const std::string b = contestOf(20000);
  Disk disk;
  disk.way = count > 2 ? arguments[2] : "beside";
  makeDisk(disk, a);
  std::uniform_int_distribution<useconds_t> moment(0, 2 * timeOfTwoSaves(disk, a, b));
  Tally tally;
  for (int i = 0; i < kills; ++i) {
    if (killOne(disk, a, b, moment(random), tally)) continue;
    std::printf("kill %d left a file that is not whole, or a save failed\n", i + 1);
    return 1;
  }
  std::printf(
      "%d kills, %d within a save: %d old and %d new contests, all whole, %d in the spare copy\n",
      kills, tally.spares, tally.smaller, tally.larger, tally.restored);
  // A run that never met a save, or never got one done, has shown nothing.
  return tally.spares > 0 && tally.smaller > 0 && tally.larger > 0 ? 0 : 1;
}
