#include "session/contest_file.h"

#include <functional>
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
#include "storage/contest_reader.h"
#include "storage/contest_writer.h"
#include "storage/file.h"
#include "storage/safe_save.h"
#include "text/format.h"
#include "text/report_marks.h"

namespace scorvane {

namespace {

constexpr const char* kNotSaved =
    "Your file did NOT save!\r\n"
    "Perhaps you previously saved to removable media like a thumb drive.\r\n"
    "Select File->Save As and save your file to another location.\r\n"
    "Again, your file did NOT save!  Please use File->Save As to ensure your work is saved.\r\n";

/// What a file held when this program last read or wrote it.
struct KnownContent {
  std::string path;
  std::size_t hash = 0;
};

KnownContent& knownContent() {
  static KnownContent known;
  return known;
}

std::size_t hashOf(std::string_view bytes) {
  return std::hash<std::string_view>()(bytes);
}

/// Whether saving would take away what somebody else has put into the current file meanwhile, such
/// as a second copy of the program with the same contest.
bool isForeign(std::string_view found, std::string_view ownBytes) {
  return knownContent().path == currentFileName() && hashOf(found) != knownContent().hash &&
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

// No other copy of the program can save between the look at the file and its replacement.
Saving save(std::string_view bytes, ForeignChanges foreignChanges) {
  const auto turn = sessionFiles().lockForSaving(currentFileName());
  const std::optional<std::string> old = sessionFiles().readWhole(currentFileName());
  if (foreignChanges == ForeignChanges::keep && old && isForeign(*old, bytes)) {
    return Saving::wouldLoseForeignChanges;
  }
  if (!saveAndKeepOld(currentFileName(), old, bytes)) return Saving::failed;
  knownContent() = {currentFileName(), hashOf(bytes)};
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
      currentFileName().c_str()));
}

void startNewContest() {
  resetContest();
  reportText() = kWelcomeText;
}

void refuseMissingFile(Window& owner) {
  startNewContest();
  owner.show(formatText("%s (%s) %s", "Invalid file name", currentFileName().c_str(),
                        ", or file does not exist."),
             "Information");
  currentFileName().clear();
}

void refuse(Window& owner, ContestFault fault) {
  if (fault == ContestFault::scoreCountMismatch) {
    owner.show("Number of scores in the file is not correct.  None read.", "Information");
    startNewContest();
    currentFileName().clear();
  } else {
    startNewContest();
    currentFileName().clear();
    owner.show("Illegal or corrupt data file.", "Error!");
  }
}

/// Lets the operator choose the file to open; a cancelled choice leaves a new contest.
bool chooseFileToOpen(Window& owner) {
  currentFileName().clear();
  auto path = owner.chooseFile(contestFileQuestion(FileQuestion::Purpose::open));
  if (!path) {
    startNewContest();
    return false;
  }
  currentFileName() = std::move(*path);
  return true;
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

void resetContest() {
  currentContest() = newContest();
  reportText().clear();
}

void saveContest(Window& owner, bool askForName) {
  if (askForName) {
    currentFileName().clear();
    auto path = owner.chooseFile(contestFileQuestion(FileQuestion::Purpose::save));
    if (!path) return;
    currentFileName() = std::move(*path);
  }
  Contest& contest = currentContest();
  const std::string bytes = writeContest(contest);
  // Whoever has just chosen a name has chosen to replace what it stands for.
  Saving saving = save(bytes, askForName ? ForeignChanges::replace : ForeignChanges::keep);
  if (saving == Saving::wouldLoseForeignChanges) {
    if (!agreesToReplaceForeignChanges(owner)) return;
    saving = save(bytes, ForeignChanges::replace);
  }
  if (saving == Saving::failed) {
    contestWasNotSaved();
    owner.show(kNotSaved, "File Save Error");
    return;
  }
  // The contest in memory gets the placeholder that the file was given.
  if (contest.categories.empty()) contest.categories = {kNoCategory};
}

void saveCurrent(Window& owner) {
  saveContest(owner, currentFileName().empty());
}

bool saveElsewhere(const std::string& path, std::string_view bytes) {
  const auto turn = sessionFiles().lockForSaving(path);
  return saveAndKeepOld(path, sessionFiles().readWhole(path), bytes);
}

bool loadContest(Window& owner, bool useGivenPath) {
  leaveContest();
  if (!useGivenPath && !chooseFileToOpen(owner)) return false;
  reportText() = kWelcomeText;
  const bool isUsableName = currentFileName().size() <= kMaxPathLength;
  const auto bytes = isUsableName ? sessionFiles().readWhole(currentFileName()) : std::nullopt;
  if (!bytes) {
    refuseMissingFile(owner);
    return false;
  }
  resetContest();
  auto reading = readContest(*bytes);
  if (const auto* fault = std::get_if<ContestFault>(&reading)) {
    refuse(owner, *fault);
    return false;
  }
  currentContest() = std::get<Contest>(std::move(reading));
  knownContent() = {currentFileName(), hashOf(*bytes)};
  contestHasFile(currentFileName(), *bytes);
  if (isKeepingWork()) followRenamedContest(sessionFiles(), currentFileName(), savedState().hash);
  reportText() = offerRecovery(owner).value_or(kWelcomeText);
  return true;
}

}  // namespace scorvane
