#include "storage/safe_save.h"

#include <optional>

namespace scorvane {

namespace {

bool writeAll(OutputFile& file, std::string_view bytes) {
  return file.write(bytes) && file.flush() && file.close();
}

struct TemporaryCopy {
  FileOutcome outcome = FileOutcome::failed;
  std::string path;
};

/// Writes the bytes to a new file and flushes it; a file that fails is removed.
TemporaryCopy writeTemporaryCopy(FileSystem& files, const std::string& target,
                                 FileSystem::Place place, std::string_view bytes) {
  constexpr int kAttempts = 100;
  for (int attempt = 1; attempt <= kAttempts; ++attempt) {
    TemporaryCopy copy{FileOutcome::failed, files.temporaryName(target, place, attempt)};
    FileSystem::Opened opened = files.create(copy.path);
    if (opened.outcome == FileOutcome::exists) continue;
    copy.outcome = opened.outcome;
    if (opened.outcome != FileOutcome::done) return copy;
    if (!writeAll(*opened.file, bytes)) {
      opened.file.reset();
      files.remove(copy.path);
      copy.outcome = FileOutcome::failed;
    }
    return copy;
  }
  return {};
}

/// Virus scanners and indexers keep fresh files open for some hundred milliseconds.
FileOutcome replacePatiently(FileSystem& files, const std::string& from, const std::string& to) {
  constexpr int kAttempts = 10;
  constexpr int kLongerEachTime = 25;
  FileOutcome outcome = files.replace(from, to);
  for (int attempt = 1; outcome == FileOutcome::denied && attempt <= kAttempts; ++attempt) {
    files.pause(attempt * kLongerEachTime);
    outcome = files.replace(from, to);
  }
  return outcome;
}

bool writeOver(FileSystem& files, const std::string& target, std::string_view bytes) {
  const FileSystem::Opened opened = files.openExisting(target);
  if (opened.outcome != FileOutcome::done) return false;
  return opened.file->write(bytes) && opened.file->resize(bytes.size()) && opened.file->flush() &&
         opened.file->close();
}

enum class InPlace { saved, oldKept, damaged };

// Room for longer content is made before the first byte is overwritten, so that a full disk shows
// while the old content is whole.
InPlace writeInPlace(FileSystem& files, const std::string& target, std::string_view bytes) {
  const std::optional<std::string> old = files.readWhole(target);
  if (!old) return InPlace::oldKept;
  {
    const FileSystem::Opened opened = files.openExisting(target);
    if (opened.outcome != FileOutcome::done) return InPlace::oldKept;
    if (bytes.size() > old->size() && !opened.file->resize(bytes.size())) {
      return opened.file->resize(old->size()) ? InPlace::oldKept : InPlace::damaged;
    }
  }
  if (writeOver(files, target, bytes)) return InPlace::saved;
  return writeOver(files, target, *old) ? InPlace::oldKept : InPlace::damaged;
}

}  // namespace

bool saveSafely(FileSystem& files, const std::string& path, std::string_view bytes) {
  const std::optional<std::string> target = files.resolve(path);
  if (!target) return false;
  const std::optional<FileStatus> status = files.status(*target);
  if (!status || (status->exists && (!status->isRegular || status->isReadOnly))) return false;

  TemporaryCopy copy = writeTemporaryCopy(files, *target, FileSystem::Place::beside, bytes);
  bool mayReplace = !status->hasOtherNames;
  if (copy.outcome == FileOutcome::denied && status->exists) {
    // The folder takes no new file. A program killed while it writes in place must still leave a
    // whole copy somewhere.
    copy = writeTemporaryCopy(files, *target, FileSystem::Place::temporaryFolder, bytes);
    mayReplace = false;
  }
  if (copy.outcome != FileOutcome::done) return false;

  FileOutcome outcome = FileOutcome::denied;
  if (mayReplace) outcome = replacePatiently(files, copy.path, *target);
  if (outcome == FileOutcome::done) return true;
  InPlace result = InPlace::oldKept;
  if (outcome == FileOutcome::denied && status->exists) {
    result = writeInPlace(files, *target, bytes);
  }
  // When the old content could not be put back, the copy is the only whole one.
  if (result != InPlace::damaged) files.remove(copy.path);
  return result == InPlace::saved;
}

}  // namespace scorvane
