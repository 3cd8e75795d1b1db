#include "session/shared_file.h"

#include <cstdint>
#include <utility>
#include <variant>

#include "session/data_folder.h"
#include "session/earlier_saves.h"
#include "session/open_contest.h"
#include "session/recovery.h"
#include "storage/content_hash.h"
#include "storage/contest_reader.h"
#include "storage/contest_writer.h"
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
  bool mustKeepFound = false;  ///< as the news tell of what a save is about to replace
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
constexpr std::int64_t kCoarsest = 3 * kTicksPerSecond;

void seeAnew(const std::optional<FileStamp>& stamp) {
  known().stamp = stamp;
  known().stampSince = sessionFiles().now();
  known().isSettled = false;
}

void know(std::string_view bytes) {
  const std::string& path = currentFileName();
  if (known().path != path) known() = {path, 0, {}, {}, 0, false};
  known().hash = contentHash(bytes);
  seeAnew(sessionFiles().stamp(path));
}

// Who reads the file and replaces it without a lock has done so by now.
bool hasStayed() {
  constexpr std::int64_t kLongestSave = 60 * kTicksPerSecond;
  return sessionFiles().now() - known().stampSince >= kLongestSave;
}

bool isKnown() {
  return !currentFileName().empty() && known().path == currentFileName();
}

// A later merge, or the operator, may have moved the classes.
void followClasses(Merge& news, const JudgingClasses& now) {
  std::vector<std::optional<std::int32_t>> indexNow(
      static_cast<std::size_t>(news.contest.classes.count()));
  for (const ClassMatch& match : matchClasses(news.contest.classes, now)) {
    if (match.here) indexNow[static_cast<std::size_t>(*match.here)] = match.there;
  }
  const auto indexOf = [&](const ContestantScore& score) {
    return indexNow[static_cast<std::size_t>(score.classIndex)];
  };
  std::erase_if(news.scores, [&](const ContestantScore& score) { return !indexOf(score); });
  for (ContestantScore& score : news.scores) score.classIndex = *indexOf(score);
  news.contest.classes = now;
}

void append(Merge& to, const Merge& from) {
  followClasses(to, from.contest.classes);
  to.values.insert(to.values.end(), from.values.begin(), from.values.end());
  to.scores.insert(to.scores.end(), from.scores.begin(), from.scores.end());
  to.lostRemovals.insert(to.lostRemovals.end(), from.lostRemovals.begin(), from.lostRemovals.end());
  to.numbers.insert(to.numbers.end(), from.numbers.begin(), from.numbers.end());
}

std::size_t countOf(const Merge& merge) {
  return merge.values.size() + merge.scores.size() + merge.lostRemovals.size() +
         merge.numbers.size();
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
  addNews(merge);
  currentContest() = std::move(merge.contest);
  if (whole == Theirs::keep && !merge.isSmooth() && isKeepingWork() &&
      keepEarlierSave(sessionFiles(), currentFileName(), bytes, false) == Keeping::failed) {
    sharing().news.isKept = false;
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

bool isOwnFile() {
  const std::string& path = currentFileName();
  if (known().path.empty() || !reachesSameFile(sessionFiles(), path, known().path)) return false;
  known().path = path;
  return true;
}

void forgetFile() {
  sharing() = {};
}

bool takeInOthersWork() {
  if (!isKnown()) return false;
  FileSystem& files = sessionFiles();
  const std::string path = currentFileName();
  // Both before the content, so that content that is newer than this is read again.
  const std::int64_t now = files.now();
  const auto stamp = files.stamp(path);
  if (!stamp || (stamp == known().stamp && known().isSettled)) return false;
  const auto bytes = files.readWhole(path);
  if (!bytes) return false;
  if (stamp != known().stamp) seeAnew(stamp);
  known().isSettled = now - known().stampSince >= kCoarsest;
  const std::uint64_t hash = contentHash(*bytes);
  if (hash == known().hash || hash == sharing().refusedHash) return false;
  if (takeIn(*bytes, Theirs::keep) != Replaced::nothing) {
    sharing().refusedHash = hash;
    return false;
  }
  if (writeContest(currentContest()) == *bytes) newsMayBeTold();
  return true;
}

void takeInBeforeSaving(const std::optional<std::string>& found, bool isLocked) {
  if (!isKnown()) return;
  if (!found) {
    const auto status = sessionFiles().status(currentFileName());
    if (status && !status->exists) sharing().news.replaced = Replaced::missingFile;
    return;
  }
  if (contentHash(*found) == known().hash) {
    if (isLocked || hasStayed()) known().ancestor = *found;
    return;
  }
  const std::size_t before = countOf(sharing().news.merge);
  const Replaced replaced = takeIn(*found, Theirs::willBeKept);
  if (replaced != Replaced::nothing) sharing().news.replaced = replaced;
  if (replaced != Replaced::nothing || countOf(sharing().news.merge) > before) {
    sharing().mustKeepFound = true;
  }
}

void foundWasReplaced(bool isKept) {
  if (std::exchange(sharing().mustKeepFound, false) && !isKept) sharing().news.isKept = false;
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
  followClasses(news.merge, currentContest().classes);
  sortAsCardsLie(currentContest(), news.merge.scores);
  news.merge.contest = currentContest();
  return news;
}

}  // namespace scorvane
