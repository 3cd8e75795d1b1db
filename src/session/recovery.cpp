#include "session/recovery.h"

#include <cstdlib>
#include <utility>

#include "session/data_folder.h"
#include "session/earlier_saves.h"
#include "session/open_contest.h"
#include "session/recovery_offer.h"
#include "storage/content_hash.h"
#include "storage/contest_writer.h"
#include "storage/safe_save.h"
#include "text/unicode.h"

namespace scorvane {

namespace {

/// What is kept of the open contest.
struct Kept {
  FileState grewFrom;
  /// The contest's bytes as of that state or as a new contest, and as of the last rewriting of the
  /// copy; nothing when they are not known.
  std::optional<std::uint64_t> savedHash;
  std::optional<std::uint64_t> copiedHash;

  std::string path;  ///< of the copy; empty while there is none
  std::shared_ptr<void> claim;
  std::unique_ptr<OutputFile> file;  ///< open behind the copy's last line
  std::string typed;                 ///< the lines of scores typed since the copy's contest
  bool isCopyWhole = false;          ///< the copy ends with the last score typed
  bool saveFailed = false;
  std::optional<std::int64_t> failedAt;  ///< when the copy could not be written
};

struct Keeper {
  FileSystem* files = nullptr;
  bool hasToSay = false;
  bool hasSaid = false;
  Kept kept;
};

Keeper& keeper() {
  static Keeper state;
  return state;
}

Kept& kept() {
  return keeper().kept;
}

// A copy that another run left, and that could not be put anywhere else, is not written over.
bool claimPath(FileSystem& files) {
  if (!kept().path.empty()) return true;
  constexpr int kMostCopies = 50;
  if (files.localDataFolder().empty() || !files.makeFolders(recoveryFolder(files))) return false;
  const std::string name = contestKey(files, kept().grewFrom.exists ? kept().grewFrom.path : "");
  for (int i = 1; i <= kMostCopies; ++i) {
    const std::string path = copyPath(files, name, i);
    FileSystem::Claim claim = files.claim(path);
    if (claim.outcome == FileOutcome::denied) continue;
    if (claim.outcome != FileOutcome::done) return false;
    const auto status = files.status(path);
    if (!status || status->exists) continue;
    kept().path = path;
    kept().claim = std::move(claim.hold);
    return true;
  }
  return false;
}

// Nobody wants to wait for a broken disk at every card.
bool mayTryAgain(FileSystem& files) {
  constexpr std::int64_t kPatience = 10 * kTicksPerSecond;
  return !kept().failedAt || std::abs(files.now() - *kept().failedAt) >= kPatience;
}

void rewriteCopy(std::string bytes) {
  FileSystem& files = sessionFiles();
  kept().file.reset();  // Windows replaces no open file
  kept().copiedHash.reset();
  kept().isCopyWhole = false;
  if (!mayTryAgain(files)) return;
  const std::uint64_t hash = contentHash(bytes);
  bytes += originLine(kept().grewFrom, bytes);
  bytes += kept().typed;
  if (!claimPath(files) || !saveSafely(files, kept().path, bytes)) {
    kept().failedAt = files.now();
    keeper().hasToSay = true;
    return;
  }
  kept().failedAt.reset();
  keeper().hasToSay = false;
  kept().copiedHash = hash;
  kept().isCopyWhole = true;
}

// Behind a line that was cut off nothing is appended any more.
bool append(const std::string& line) {
  if (!kept().isCopyWhole) return false;
  if (kept().file == nullptr) kept().file = sessionFiles().openToAppend(kept().path).file;
  return kept().file != nullptr && kept().file->write(line) && kept().file->flush();
}

void discardCopy() {
  kept().file.reset();
  if (!kept().path.empty()) sessionFiles().remove(kept().path);
  kept() = {};
}

/// The contest is as in its file again.
void discardNeedlessCopy() {
  const FileState grewFrom = kept().grewFrom;
  const auto saved = kept().savedHash;
  discardCopy();
  kept().grewFrom = grewFrom;
  kept().savedHash = saved;
}

FileState stateOf(const std::string& path, std::string_view bytes) {
  FileSystem& files = sessionFiles();
  const auto changed = files.lastChange(path);
  return {fullPath(files, path), changed.has_value(), bytes.size(), contentHash(bytes),
          changed.value_or(0)};
}

}  // namespace

void startKeepingWork(FileSystem& files) {
  keeper() = {};
  keeper().files = &files;
  contestIsNew();
  keepUntitledRests(files);
}

void endKeepingWork() {
  leaveContest();
  stopKeepingWork();
}

void stopKeepingWork() {
  keeper() = {};
}

FileSystem& sessionFiles() {
  return isKeepingWork() ? *keeper().files : systemFiles();
}

bool isKeepingWork() {
  return keeper().files != nullptr;
}

void scoreStored(const TypedScore& score) {
  if (!isKeepingWork()) return;
  const std::string line = typedScoreLine(score);
  kept().typed += line;
  kept().copiedHash.reset();
  if (append(line)) return;
  kept().file.reset();
  kept().isCopyWhole = false;
  if (mayTryAgain(sessionFiles())) rewriteCopy(writeContest(currentContest()));
}

void contestChanged() {
  if (!isKeepingWork()) return;
  std::string bytes = writeContest(currentContest());
  const std::uint64_t hash = contentHash(bytes);
  if (hash == kept().copiedHash) return;
  if (hash == kept().savedHash && !kept().saveFailed) return discardNeedlessCopy();
  // The lines named classes by number, and these may be other classes by now.
  kept().typed.clear();
  rewriteCopy(std::move(bytes));
}

void sayIfWorkIsNotKept(Window& owner) {
  if (!keeper().hasToSay || keeper().hasSaid) return;
  keeper().hasSaid = true;
  owner.show("Scorvane could not keep a recovery copy of your work in this folder:\r\n" +
                 shownPath(recoveryFolder(sessionFiles())) +
                 "\r\n"
                 "Perhaps the disk is full.  Saving goes on as usual, but scores typed since the "
                 "last save would be lost if the computer failed.\r\n",
             "Warning");
}

void contestIsNew() {
  if (isKeepingWork()) kept().savedHash = contentHash(writeContest(currentContest()));
}

void contestHasFile(const std::string& path, std::string_view bytes) {
  if (!isKeepingWork()) return;
  discardCopy();
  kept().grewFrom = stateOf(path, bytes);
  const std::string written = writeContest(currentContest());
  kept().savedHash = written == bytes ? kept().grewFrom.hash : contentHash(written);
}

void contestTookIn(const std::string& path, std::string_view bytes, const Contest& theirs,
                   bool hasSameNumbers) {
  if (!isKeepingWork()) return;
  kept().grewFrom = stateOf(path, bytes);
  kept().savedHash = contentHash(writeContest(theirs));
  std::string merged = writeContest(currentContest());
  if (contentHash(merged) == kept().savedHash && !kept().saveFailed) return discardNeedlessCopy();
  // The lines name classes and people by number.
  if (!hasSameNumbers) kept().typed.clear();
  rewriteCopy(std::move(merged));
}

void contestWasNotSaved(NotSaved why) {
  if (!isKeepingWork()) return;
  if (why == NotSaved::failed) kept().saveFailed = true;
  if (kept().path.empty()) contestChanged();
}

void leaveContest() {
  if (!isKeepingWork()) return;
  FileSystem& files = sessionFiles();
  const std::string bytes = writeContest(currentContest());
  const FileState& grewFrom = kept().grewFrom;
  const bool isSaved = contentHash(bytes) == kept().savedHash && !kept().saveFailed;
  if (kept().saveFailed && !kept().isCopyWhole) {
    kept().failedAt.reset();  // the last attempt
    rewriteCopy(bytes);
  }
  const bool isOffered = kept().saveFailed && kept().isCopyWhole;
  if (isSaved || (!isOffered && keepEarlierSave(files, grewFrom.exists ? grewFrom.path : "", bytes,
                                                true) != Keeping::failed)) {
    discardCopy();
  }
  kept() = {};
}

void adoptCopy(const std::string& path, std::shared_ptr<void> claim) {
  kept().path = path;
  kept().claim = std::move(claim);
}

const FileState& savedState() {
  return kept().grewFrom;
}

}  // namespace scorvane
