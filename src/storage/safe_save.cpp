#include "storage/safe_save.h"

#include <algorithm>
#include <utility>

#include "storage/content_hash.h"
#include "storage/contest_format.h"

namespace scorvane {

namespace {

bool writeAll(OutputFile& file, std::string_view bytes) {
  return file.write(bytes) && file.flush() && file.close();
}

/// What a copy of a save in place ends with: hashes of the content that it replaces and of its own.
constexpr std::string_view kCopyKey = "~~~~~Copy~~~~~";
constexpr int kHashDigits = 16;
constexpr std::size_t kCopyTail =
    kCopyKey.size() + 2 * (1 + std::size_t{kHashDigits}) + kLineEnd.size();
constexpr int kAttempts = 100;

/// Of a content that may have been made longer for the one that was to replace it.
std::uint64_t hashWithoutPadding(std::string_view bytes) {
  return contentHash(bytes.substr(0, bytes.find_last_not_of('\0') + 1));
}

std::string copyTail(std::string_view old, std::string_view bytes) {
  std::string tail(kCopyKey);
  tail.append("\t").append(hashText(hashWithoutPadding(old)));
  tail.append("\t").append(hashText(contentHash(bytes)));
  return tail.append(kLineEnd);
}

/// The name of a copy of a save in place tells which file it belongs to: by the file's own name
/// beside it, where it may be moved together with it, else by the path.
std::string copyName(FileSystem& files, const std::string& target, FileSystem::Place place,
                     int attempt) {
  const std::string other = files.temporaryName(target, place, attempt);
  const std::string folder = other.substr(0, other.find_last_of("/\\") + 1);
  const std::size_t name = target.find_last_of("/\\") + 1;
  const std::string_view key =
      std::string_view(target).substr(place == FileSystem::Place::beside ? name : 0);
  return folder + "~scorvane-" + hashText(contentHash(key)) + "-" + std::to_string(attempt) +
         ".tmp";
}

struct TemporaryCopy {
  FileOutcome outcome = FileOutcome::failed;
  std::string path;
  int attempt = 0;
};

/// Writes the bytes, and the tail behind them, to a new file and flushes it; a file that fails is
/// removed.
template <typename Name>
TemporaryCopy writeCopy(FileSystem& files, const Name& name, std::string_view bytes,
                        std::string_view tail) {
  for (int attempt = 1; attempt <= kAttempts; ++attempt) {
    TemporaryCopy copy{FileOutcome::failed, name(attempt), attempt};
    FileSystem::Opened opened = files.create(copy.path);
    if (opened.outcome == FileOutcome::exists) continue;
    copy.outcome = opened.outcome;
    if (opened.outcome != FileOutcome::done) return copy;
    if (!opened.file->write(bytes) || !writeAll(*opened.file, tail)) {
      opened.file.reset();
      files.remove(copy.path);
      copy.outcome = FileOutcome::failed;
    }
    return copy;
  }
  return {};
}

/// Virus scanners and indexers keep fresh files open for some hundred milliseconds.
FileOutcome replacePatiently(FileSystem& files, const std::string& from, const std::string& to,
                             const std::function<bool()>& mayReplace) {
  constexpr int kReplacings = 10;
  constexpr int kLongerEachTime = 25;
  for (int attempt = 1;; ++attempt) {
    if (!mayReplace()) return FileOutcome::failed;
    const FileOutcome outcome = files.replace(from, to);
    if (outcome != FileOutcome::denied || attempt > kReplacings) return outcome;
    files.pause(attempt * kLongerEachTime);
  }
}

bool writeStart(FileSystem& files, const std::string& target, std::string_view bytes) {
  const FileSystem::Opened opened = files.openExisting(target);
  return opened.outcome == FileOutcome::done && writeAll(*opened.file, bytes);
}

// The first byte comes last, as one byte cannot be torn: until then no reader takes the file for a
// contest.
bool writeOver(FileSystem& files, const std::string& target, std::string_view bytes) {
  const std::string_view mark(&kUnfinishedMark, 1);
  if (!writeStart(files, target, mark)) return false;
  {
    const FileSystem::Opened opened = files.openExisting(target);
    if (opened.outcome != FileOutcome::done) return false;
    OutputFile& file = *opened.file;
    const std::string_view rest = bytes.substr(std::min<std::size_t>(bytes.size(), 1));
    if (!file.write(mark) || !file.write(rest) || !file.resize(bytes.size())) return false;
    if (!file.flush() || !file.close()) return false;
  }
  return bytes.empty() || writeStart(files, target, bytes.substr(0, 1));
}

enum class InPlace { saved, oldKept, damaged };

// Room for longer content is made before the first byte is overwritten, so that a full disk shows
// while the old content is whole.
InPlace overwrite(FileSystem& files, const std::string& target, std::string_view old,
                  std::string_view bytes) {
  {
    const FileSystem::Opened opened = files.openExisting(target);
    if (opened.outcome != FileOutcome::done) return InPlace::oldKept;
    if (bytes.size() > old.size() && !opened.file->resize(bytes.size())) {
      return opened.file->resize(old.size()) ? InPlace::oldKept : InPlace::damaged;
    }
  }
  if (writeOver(files, target, bytes)) return InPlace::saved;
  return writeOver(files, target, old) ? InPlace::oldKept : InPlace::damaged;
}

// A program killed meanwhile must leave a whole copy somewhere.
bool saveInPlace(FileSystem& files, const std::string& target, std::string_view bytes,
                 const std::function<bool()>& mayReplace) {
  const std::optional<std::string> old = files.readWhole(target);
  if (!old) return false;
  const std::string tail = copyTail(*old, bytes);
  auto place = FileSystem::Place::beside;
  const auto name = [&](int attempt) { return copyName(files, target, place, attempt); };
  TemporaryCopy copy = writeCopy(files, name, bytes, tail);
  if (copy.outcome == FileOutcome::denied) {
    place = FileSystem::Place::temporaryFolder;
    copy = writeCopy(files, name, bytes, tail);
  }
  if (copy.outcome != FileOutcome::done) return false;
  const InPlace result = mayReplace() ? overwrite(files, target, *old, bytes) : InPlace::oldKept;
  // When the old content could not be put back, the copy is the only whole one. Once all is well,
  // those that other saves left are of no use either.
  const int first = result == InPlace::saved ? 1 : copy.attempt;
  for (int i = first; i <= copy.attempt && result != InPlace::damaged; ++i) files.remove(name(i));
  return result == InPlace::saved;
}

/// A whole copy that was to replace the content; nothing for any other. One that has replaced it is
/// removed.
std::optional<std::string> wholeCopy(FileSystem& files, const std::string& path,
                                     const std::string* found) {
  auto bytes = files.readWhole(path);
  if (!bytes || bytes->size() < kCopyTail) return std::nullopt;
  const std::string tail = bytes->substr(bytes->size() - kCopyTail);
  bytes->resize(bytes->size() - kCopyTail);
  const std::string expected = copyTail("", *bytes);
  const std::size_t own = expected.size() - kHashDigits - kLineEnd.size();
  if (!tail.starts_with(kCopyKey) || tail.substr(own) != expected.substr(own)) return std::nullopt;
  if (found != nullptr && *found == *bytes) files.remove(path);
  if (found != nullptr && tail != copyTail(*found, *bytes)) return std::nullopt;
  return bytes;
}

}  // namespace

bool saveSafely(FileSystem& files, const std::string& path, std::string_view bytes,
                const std::function<bool()>& mayReplace) {
  const std::optional<std::string> target = files.resolve(path);
  if (!target) return false;
  const std::optional<FileStatus> status = files.status(*target);
  if (!status || (status->exists && (!status->isRegular || status->isReadOnly))) return false;
  if (status->hasOtherNames) return saveInPlace(files, *target, bytes, mayReplace);

  const auto name = [&](int attempt) {
    return files.temporaryName(*target, FileSystem::Place::beside, attempt);
  };
  const TemporaryCopy copy = writeCopy(files, name, bytes, "");
  FileOutcome outcome = copy.outcome;
  if (outcome == FileOutcome::done) {
    outcome = replacePatiently(files, copy.path, *target, mayReplace);
    if (outcome != FileOutcome::done) files.remove(copy.path);
  }
  if (outcome == FileOutcome::denied && status->exists)
    return saveInPlace(files, *target, bytes, mayReplace);
  return outcome == FileOutcome::done;
}

std::optional<UnfinishedSave> unfinishedSave(FileSystem& files, const std::string& path,
                                             const std::string* found) {
  constexpr int kMostLeft = 4;
  const std::optional<std::string> target = files.resolve(path);
  if (!target) return std::nullopt;
  for (const auto place : {FileSystem::Place::beside, FileSystem::Place::temporaryFolder}) {
    for (int attempt = kMostLeft; attempt > 0; --attempt) {
      std::string name = copyName(files, *target, place, attempt);
      if (auto bytes = wholeCopy(files, name, found)) {
        return UnfinishedSave{std::move(name), std::move(*bytes)};
      }
    }
  }
  return std::nullopt;
}

}  // namespace scorvane
