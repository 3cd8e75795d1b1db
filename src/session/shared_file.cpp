#include "session/shared_file.h"

#include <cstdint>
#include <utility>
#include <variant>

#include "session/earlier_saves.h"
#include "session/open_contest.h"
#include "session/recovery.h"
#include "storage/content_hash.h"
#include "storage/contest_reader.h"
#include "storage/file.h"

namespace scorvane {

namespace {

/// What is known of the contest's file.
struct Known {
  std::string path;
  std::uint64_t hash = 0;  ///< of what it held last
  std::string ancestor;    ///< what the contest and the file have in common
  std::optional<FileStamp> stamp;
  std::int64_t stampSince = 0;  ///< when this program first saw that stamp
  bool isSettled = false;       ///< a change would have another stamp
};

struct Sharing {
  Known known;
  std::uint64_t refusedHash = 0;  ///< of what a look found and could not take in
  SharingNews news;
  bool mayTell = false;
};

Sharing& sharing() {
  static Sharing state;
  return state;
}

Known& known() {
  return sharing().known;
}

// Times of files are as coarse as two seconds, so content read sooner after a time was first seen
// may be followed by other content with the same time. The clock of a share may be anyone's.
void see(const std::optional<FileStamp>& stamp) {
  constexpr std::int64_t kCoarsest = 3 * kTicksPerSecond;
  const std::int64_t now = sessionFiles().now();
  if (stamp != known().stamp) {
    known().stamp = stamp;
    known().stampSince = now;
  }
  known().isSettled = now - known().stampSince >= kCoarsest;
}

void know(std::string_view bytes) {
  const std::string& path = currentFileName();
  if (known().path != path) known() = {path, 0, {}, {}, 0, false};
  known().hash = contentHash(bytes);
  see(sessionFiles().stamp(path));
}

bool isKnown() {
  return !currentFileName().empty() && known().path == currentFileName();
}

void append(Merge& to, const Merge& from) {
  to.values.insert(to.values.end(), from.values.begin(), from.values.end());
  to.scores.insert(to.scores.end(), from.scores.begin(), from.scores.end());
  to.lostRemovals.insert(to.lostRemovals.end(), from.lostRemovals.begin(), from.lostRemovals.end());
  to.numbers.insert(to.numbers.end(), from.numbers.begin(), from.numbers.end());
}

using Replaced = SharingNews::Replaced;

enum class Theirs { keep, willBeKept };

/// Merges what the file holds into the contest, or says what it is instead.
Replaced takeIn(const std::string& bytes, Theirs whole) {
  auto reading = readContest(bytes);
  const auto* theirs = std::get_if<Contest>(&reading);
  if (theirs == nullptr) return Replaced::noContest;
  auto ancestorReading = readContest(known().ancestor);
  const auto* ancestor = std::get_if<Contest>(&ancestorReading);
  if (ancestor == nullptr || !isSameContest(*ancestor, *theirs)) return Replaced::anotherContest;
  Merge merge = mergeContests(*ancestor, currentContest(), *theirs);
  const bool hasSameNumbers = merge.numbers.empty() &&
                              merge.contest.classes.className == currentContest().classes.className;
  currentContest() = std::move(merge.contest);
  addNews(merge);
  if (whole == Theirs::keep && !merge.isSmooth() && isKeepingWork()) {
    keepEarlierSave(sessionFiles(), currentFileName(), bytes, false);
  }
  known().hash = contentHash(bytes);
  known().ancestor = bytes;
  contestTookIn(currentFileName(), bytes, *theirs, hasSameNumbers);
  return Replaced::nothing;
}

}  // namespace

void knowFile(std::string_view bytes) {
  know(bytes);
  known().ancestor = bytes;
}

void knowFileForNow(std::string_view bytes) {
  if (isKnown()) return know(bytes);
  knowFile(bytes);
}

void forgetFile() {
  sharing() = {};
}

bool takeInOthersWork() {
  if (!isKnown()) return false;
  FileSystem& files = sessionFiles();
  const std::string path = currentFileName();
  // Before the content, so that content that is newer than this is read again.
  const auto stamp = files.stamp(path);
  if (!stamp || (stamp == known().stamp && known().isSettled)) return false;
  const auto bytes = files.readWhole(path);
  if (!bytes) return false;
  see(stamp);
  const std::uint64_t hash = contentHash(*bytes);
  if (hash == known().hash || hash == sharing().refusedHash) return false;
  if (takeIn(*bytes, Theirs::keep) == Replaced::nothing) return true;
  sharing().refusedHash = hash;
  return false;
}

bool takeInBeforeSaving(const std::optional<std::string>& found, bool isLocked) {
  if (!isKnown()) return false;
  if (!found) {
    const auto status = sessionFiles().status(currentFileName());
    if (status && !status->exists) sharing().news.replaced = Replaced::missingFile;
    return false;
  }
  if (contentHash(*found) == known().hash) {
    if (isLocked) known().ancestor = *found;
    return false;
  }
  const Replaced replaced = takeIn(*found, Theirs::willBeKept);
  if (replaced == Replaced::nothing) return true;
  sharing().news.replaced = replaced;
  return false;
}

void addNews(const Merge& merge) {
  append(sharing().news.merge, merge);
}

void newsMayBeTold() {
  sharing().mayTell = true;
}

void nothingWasReplaced() {
  sharing().news.replaced = Replaced::nothing;
}

std::optional<SharingNews> takeNews() {
  if (!std::exchange(sharing().mayTell, false)) return std::nullopt;
  SharingNews news = std::exchange(sharing().news, {});
  if (news.replaced == Replaced::nothing && news.merge.isSmooth()) return std::nullopt;
  news.merge.contest = currentContest();
  return news;
}

}  // namespace scorvane
