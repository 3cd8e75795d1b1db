#include "session/contest_file.h"

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
#include "session/save_lock.h"
#include "session/shared_file.h"
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

struct KeptSave {
  bool isSaved = false;
  Keeping old = Keeping::known;  ///< what became of that which the save replaced
  bool hasChanged = false;       ///< not saved, as the file holds something newer
};

/// Keeps what the save replaces. On a disk too full for both the save comes first.
KeptSave saveAndKeepOld(const std::string& path, const std::optional<std::string>& old,
                        std::string_view bytes, bool onlyOverOld) {
  FileSystem& files = sessionFiles();
  KeptSave save;
  if (isKeepingWork() && old && *old != bytes) {
    save.old = keepEarlierSave(files, path, *old, false);
  }
  const auto mayReplace = [&] {
    save.hasChanged = onlyOverOld && files.readWhole(path) != old;
    return !save.hasChanged;
  };
  save.isSaved = saveSafely(files, path, bytes, mayReplace);
  if (save.isSaved || save.hasChanged || save.old != Keeping::kept) return save;
  forgetNewestSave(files, path);
  save.old = Keeping::failed;
  save.isSaved = saveSafely(files, path, bytes, mayReplace);
  return save;
}

bool isRegularFile(FileSystem& files, const std::string& path) {
  const auto status = files.status(path);
  return status && status->exists && status->isRegular;
}

/// A file that another program is just putting in place may refuse to be read for a moment.
std::optional<std::string> readPatiently(FileSystem& files, const std::string& path) {
  constexpr int kAttempts = 10;
  constexpr int kLongerEachTime = 25;
  for (int attempt = 1;; ++attempt) {
    auto bytes = files.readWhole(path);
    if (bytes || attempt > kAttempts || !isRegularFile(files, path)) return bytes;
    files.pause(attempt * kLongerEachTime);
  }
}

/// What becomes of that which others have saved to the file.
enum class OthersWork { takenIn, replaced };
enum class Saving { done, failed, perhapsReplacedOthersWork };

constexpr int kAttempts = 3;

Saving save(OthersWork othersWork) {
  FileSystem& files = sessionFiles();
  const std::string& path = currentFileName();
  const SaveLock lock(files, path);
  std::string bytes;
  for (int attempt = 1;; ++attempt) {
    const std::optional<std::string> old = readPatiently(files, path);
    // What cannot be read must not be replaced: it may hold what others saved.
    if (!old && isRegularFile(files, path)) return Saving::failed;
    const bool takesIn = othersWork == OthersWork::takenIn;
    if (takesIn) takeInBeforeSaving(old, lock.isHeld());
    bytes = writeContest(currentContest());
    const bool canLookAgain = takesIn && !lock.isHeld() && attempt < kAttempts;
    const KeptSave result = saveAndKeepOld(path, old, bytes, canLookAgain);
    if (result.isSaved) foundWasReplaced(result.old != Keeping::failed);
    if (result.isSaved) break;
    if (!result.hasChanged) return Saving::failed;
  }
  if (lock.isHeld()) {
    knowFile(bytes);
  } else {
    knowFileForNow(bytes);
  }
  contestHasFile(path, bytes);
  if (isKeepingWork()) tidyEarlierSaves(files, path, savedState().hash);
  return lock.isHeld() ? Saving::done : Saving::perhapsReplacedOthersWork;
}

void sayNotSaved(Window& owner) {
  nothingWasReplaced();
  contestWasNotSaved(NotSaved::failed);
  owner.show(kNotSaved, "File Save Error");
}

void saveToCurrentFile(Window& owner, OthersWork othersWork) {
  Saving saving = save(othersWork);
  // Whoever could not get the lock may have saved at the same moment as the one that has it.
  for (int attempt = 1;
       saving == Saving::perhapsReplacedOthersWork && attempt < kAttempts && takeInOthersWork();
       ++attempt) {
    saving = save(OthersWork::takenIn);
  }
  if (saving == Saving::failed) return sayNotSaved(owner);
  newsMayBeTold();
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
  const SaveLock lock(files, path);
  const bool isSaved =
      saveAndKeepOld(path, readPatiently(files, path), loaded.bytes, false).isSaved;
  if (isSaved) {
    files.remove(loaded.copy);
    knowFile(loaded.bytes);
    contestHasFile(path, loaded.bytes);
  } else {
    // What the file holds is not somebody else's work.
    knowFileForNow(files.readWhole(path).value_or(""));
    contestWasNotSaved(NotSaved::failed);
  }
  owner.show(
      "Scorvane or the computer was stopped while it saved this contest, and the file was left "
      "unfinished.\r\n\r\n"
      "The contest as it was to be saved was found in this copy and is open now:\r\n" +
          shownPath(loaded.copy) + "\r\n\r\n" +
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
  question.folder = contestFolder();
  return question;
}

void startNewContest() {
  leaveContest();
  forgetFile();
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
  forgetFile();
  auto& loaded = std::get<LoadedContest>(loading);
  currentContest() = std::move(loaded.contest);
  currentFileName() = path;
  knowFile(loaded.bytes);
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
    saveToCurrentFile(owner, OthersWork::takenIn);
  }
}

void saveContestAs(Window& owner) {
  const FileQuestion question = contestFileQuestion(FileQuestion::Purpose::save);
  takeInOthersWork();  // a copy under another name holds everybody's work, too
  // Odd but required, docs/required-behaviour.md: save-as-forgets-the-name
  currentFileName().clear();
  auto path = owner.chooseFile(question);
  if (!path) return contestWasNotSaved(NotSaved::cancelled);
  if (countCharacters(*path) > kMaxPathLength) return sayNotSaved(owner);
  currentFileName() = std::move(*path);
  // Choosing the name was the consent to replace what is there, but not what others save there.
  saveToCurrentFile(owner, isOwnFile() ? OthersWork::takenIn : OthersWork::replaced);
}

bool saveElsewhere(const std::string& path, std::string_view bytes) {
  const SaveLock lock(sessionFiles(), path);
  return saveAndKeepOld(path, sessionFiles().readWhole(path), bytes, false).isSaved;
}

}  // namespace scorvane
