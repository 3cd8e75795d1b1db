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

/// Writes a complete, flushed copy beside the target or elsewhere, or leaves nothing there.
TemporaryCopy writeTemporaryCopy(FileSystem& files, const std::string& target,
                                 FileSystem::Place place, std::string_view bytes) {
  constexpr int kAttempts = 100;
  for (int attempt = 1; attempt <= kAttempts; ++attempt) {
    TemporaryCopy spare{FileOutcome::failed, files.temporaryName(target, place, attempt)};
    FileSystem::Opened opened = files.create(spare.path);
    if (opened.outcome == FileOutcome::exists) continue;
    spare.outcome = opened.outcome;
    if (opened.outcome != FileOutcome::done) return spare;
    if (!writeAll(*opened.file, bytes)) {
      opened.file.reset();
      files.remove(spare.path);
      spare.outcome = FileOutcome::failed;
    }
    return spare;
  }
  return {};
}

/// Virus scanners and indexers hold fresh files for some hundred milliseconds.
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

// The room for longer content is made before the first byte of the old one is written over, so
// that a full disk is found out while the old content is whole.
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
  const std::optional<FileStatus> facts = files.facts(*target);
  if (!facts || (facts->exists && (!facts->isRegular || facts->isReadOnly))) return false;

  TemporaryCopy spare = writeTemporaryCopy(files, *target, FileSystem::Place::beside, bytes);
  bool mayReplace = !facts->hasOtherNames;
  if (spare.outcome == FileOutcome::denied && facts->exists) {
    // A program killed while it writes in place must leave a whole copy somewhere.
    spare = writeTemporaryCopy(files, *target, FileSystem::Place::temporaryFolder, bytes);
    mayReplace = false;
  }
  if (spare.outcome != FileOutcome::done) return false;

  FileOutcome outcome = FileOutcome::denied;
  if (mayReplace) outcome = replacePatiently(files, spare.path, *target);
  if (outcome == FileOutcome::done) return true;
  InPlace result = InPlace::oldKept;
  if (outcome == FileOutcome::denied && facts->exists) {
    result = writeInPlace(files, *target, bytes);
  }
  // A file that could not be put right again leaves the spare copy as the good one.
  if (result != InPlace::damaged) files.remove(spare.path);
  return result == InPlace::saved;
}

}  // namespace scorvane
