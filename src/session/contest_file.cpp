#include "session/contest_file.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>
#include <variant>

#include "model/contest.h"
#include "model/new_contest.h"
#include "session/earlier_saves.h"
#include "session/open_contest.h"
#include "session/recovery.h"
#include "session/recovery_offer.h"
#include "storage/content_hash.h"
#include "storage/contest_loader.h"
#include "storage/contest_writer.h"
#include "storage/file.h"
#include "storage/safe_save.h"
#include "text/format.h"
#include "text/report_marks.h"
#include "text/unicode.h"

namespace scorvane {

namespace {

constexpr const char* kNotSaved =
    "Your file did NOT save!\r\n"
    "Perhaps you previously saved to removable media like a thumb drive.\r\n"
    "Select File->Save As and save your file to another location.\r\n"
    "Again, your file did NOT save!  Please use File->Save As to ensure your work is saved.\r\n";

/// What the contest's file held when this program last read or wrote it.
struct KnownContent {
  std::string path;
  std::uint64_t hash = 0;
};

KnownContent& knownContent() {
  static KnownContent known;
  return known;
}

/// Whether saving would overwrite what somebody else has saved to the current file meanwhile, such
/// as a second copy of the program with the same contest.
bool isForeign(std::string_view found, std::string_view ownBytes) {
  return knownContent().path == currentFileName() && contentHash(found) != knownContent().hash &&
         found != ownBytes;
}

enum class ForeignChanges { keep, replace };
enum class Saving { done, failed, wouldLoseForeignChanges };

/// Keeps what the save replaces. On a disk too full for both the save comes first.
bool saveAndKeepOld(const std::string& path, const std::optional<std::string>& old,
                    std::string_view bytes) {
  FileSystem& files = sessionFiles();
  const bool isKept = isKeepingWork() && old && *old != bytes &&
                      keepEarlierSave(files, path, *old, false) == Keeping::kept;
  if (saveSafely(files, path, bytes)) return true;
  if (!isKept) return false;
  forgetNewestSave(files, path);
  return saveSafely(files, path, bytes);
}

Saving save(std::string_view bytes, ForeignChanges foreignChanges) {
  // No other copy of the program may save between the look at the file and its replacement.
  const auto lock = sessionFiles().lockForSaving(currentFileName());
  const std::optional<std::string> old = sessionFiles().readWhole(currentFileName());
  if (foreignChanges == ForeignChanges::keep && old && isForeign(*old, bytes)) {
    return Saving::wouldLoseForeignChanges;
  }
  if (!saveAndKeepOld(currentFileName(), old, bytes)) return Saving::failed;
  knownContent() = {currentFileName(), contentHash(bytes)};
  contestHasFile(currentFileName(), bytes);
  if (isKeepingWork()) tidyEarlierSaves(sessionFiles(), currentFileName(), savedState().hash);
  return Saving::done;
}

bool agreesToReplaceForeignChanges(Window& owner) {
  return owner.confirm(formatText(
      "Another program has changed this file since you opened or last saved it:\r\n"
      "%s\r\n"
      "OK saves your contest there, and the other changes are lost.\r\n"
      "Cancel does NOT save it.  Use File->Save As to save your contest under another name.\r\n",
      shownPath(currentFileName()).c_str()));
}

void sayNotSaved(Window& owner) {
  contestWasNotSaved(NotSaved::failed);
  owner.show(kNotSaved, "File Save Error");
}

void saveToCurrentFile(Window& owner, ForeignChanges foreignChanges) {
  const std::string bytes = writeContest(currentContest());
  Saving saving = save(bytes, foreignChanges);
  if (saving == Saving::wouldLoseForeignChanges) {
    if (!agreesToReplaceForeignChanges(owner)) return contestWasNotSaved(NotSaved::cancelled);
    saving = save(bytes, ForeignChanges::replace);
  }
  if (saving == Saving::failed) return sayNotSaved(owner);
  // The contest in memory gets the placeholder that was written for it.
  if (currentContest().categories.empty()) currentContest().categories = {kNoCategory};
}

void showFault(Window& owner, const ContestFault& fault, const std::string& path) {
  switch (fault.kind) {
    case ContestFault::unreadable:
      owner.show(
          formatText("Invalid file name (%s) , or file does not exist.", shownPath(path).c_str()),
          "Information");
      break;
    case ContestFault::notAContest:
      owner.show("Illegal or corrupt data file.", "Error!");
      break;
    case ContestFault::scoreCountMismatch:
      owner.show("Number of scores in the file is not correct.  None read.", "Information");
      break;
  }
}

/// Finishes the save in place whose copy was read instead of the file.
void finishSave(Window& owner, const std::string& path, const LoadedContest& loaded) {
  FileSystem& files = sessionFiles();
  const auto lock = files.lockForSaving(path);
  const bool isSaved = saveSafely(files, path, loaded.bytes);
  if (isSaved) {
    files.remove(loaded.copy);
  } else {
    // What the file holds is not somebody else's work.
    knownContent().hash = contentHash(files.readWhole(path).value_or(""));
    contestWasNotSaved(NotSaved::failed);
  }
  owner.show(
      "Scorvane or the computer was stopped while it saved this contest, and the file was left "
      "unfinished.\r\n\r\n"
      "The contest as it was to be saved was found in this copy and is open now:\r\n" +
          loaded.copy + "\r\n\r\n" +
          (isSaved ? "It has been saved to its file again.\r\n"
                   : "It could NOT be saved to its file again.  Use File->Save As to save it "
                     "to another location.\r\n"),
      "Information");
}

void showOddities(Window& owner, std::string oddities) {
  for (std::size_t end = 0; (end = oddities.find('\n', end)) != std::string::npos; end += 2) {
    oddities.insert(end, 1, '\r');
  }
  owner.show("This file was opened, but it may be damaged:\r\n\r\n" + oddities, "Information");
}

}  // namespace

FileQuestion contestFileQuestion(FileQuestion::Purpose purpose) {
  FileQuestion question;
  question.purpose = purpose;
  question.filters = {{"Scorvane", "*.scv"}, {"All", "*.*"}};
  question.defaultExtension = "scv";
  question.fileMustExist = purpose == FileQuestion::Purpose::open;
  return question;
}

void startNewContest() {
  leaveContest();
  currentContest() = newContest();
  contestIsNew();
  currentFileName().clear();
  reportText() = kWelcomeText;
}

bool openContest(Window& owner, const std::string& path) {
  std::variant<LoadedContest, ContestFault> loading = ContestFault{};
  if (countCharacters(path) <= kMaxPathLength) loading = loadContestFile(sessionFiles(), path);
  if (const auto* fault = std::get_if<ContestFault>(&loading)) {
    startNewContest();
    showFault(owner, *fault, path);
    return false;
  }
  leaveContest();
  auto& loaded = std::get<LoadedContest>(loading);
  currentContest() = std::move(loaded.contest);
  currentFileName() = path;
  knownContent() = {path, contentHash(loaded.bytes)};
  contestHasFile(path, loaded.bytes);
  if (!loaded.copy.empty()) finishSave(owner, path, loaded);
  if (!loaded.oddities.empty()) showOddities(owner, loaded.oddities);
  if (isKeepingWork()) followRenamedContest(sessionFiles(), path, savedState().hash);
  reportText() = offerRecovery(owner).value_or(kWelcomeText);
  return true;
}

bool openChosenContest(Window& owner) {
  const auto path = owner.chooseFile(contestFileQuestion(FileQuestion::Purpose::open));
  if (path) return openContest(owner, *path);
  // Odd but required, docs/required-behaviour.md: cancelled-open-starts-anew
  startNewContest();
  return false;
}

void saveCurrent(Window& owner) {
  if (currentFileName().empty()) {
    saveContestAs(owner);
  } else {
    saveToCurrentFile(owner, ForeignChanges::keep);
  }
}

void saveContestAs(Window& owner) {
  // Odd but required, docs/required-behaviour.md: save-as-forgets-the-name
  currentFileName().clear();
  auto path = owner.chooseFile(contestFileQuestion(FileQuestion::Purpose::save));
  if (!path) return contestWasNotSaved(NotSaved::cancelled);
  if (countCharacters(*path) > kMaxPathLength) return sayNotSaved(owner);
  currentFileName() = std::move(*path);
  // Choosing the name was the consent to replace what is there.
  saveToCurrentFile(owner, ForeignChanges::replace);
}

bool saveElsewhere(const std::string& path, std::string_view bytes) {
  const auto lock = sessionFiles().lockForSaving(path);
  return saveAndKeepOld(path, sessionFiles().readWhole(path), bytes);
}

}  // namespace scorvane
