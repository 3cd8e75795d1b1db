#include "session/save_lock.h"

#include <utility>

namespace scorvane {

namespace {

constexpr int kPatience = FileSystem::kSavePatience;
constexpr int kPause = 20;
// The one that had the lock file may have gone between being refused and looking for it.
constexpr int kRefusalsWithoutFile = 5;

}  // namespace

SaveLock::SaveLock(FileSystem& files, const std::string& path) {
  FileSystem::Claim machine = files.lockForSaving(path, kPatience);
  machine_ = std::move(machine.hold);
  const bool hasWaited = machine.outcome == FileOutcome::denied;
  const std::string target = files.resolve(path).value_or(path);
  int refusals = 0;
  for (int waited = hasWaited ? kPatience : 0;; waited += kPause) {
    FileSystem::Claim beside = files.claim(target);
    beside_ = std::move(beside.hold);
    isHeld_ = !hasWaited && beside.outcome == FileOutcome::done;
    if (beside.outcome != FileOutcome::denied) return;
    const auto status = files.status(target + kClaimEnding);
    refusals = status && !status->exists ? refusals + 1 : 0;
    if (refusals >= kRefusalsWithoutFile) return;
    if (waited >= kPatience) return;
    files.pause(kPause);
  }
}

}  // namespace scorvane
