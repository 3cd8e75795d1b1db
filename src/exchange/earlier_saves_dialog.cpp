#include "exchange/earlier_saves_dialog.h"

#include <array>
#include <ctime>
#include <utility>
#include <variant>

#include "model/change_summary.h"
#include "model/new_contest.h"
#include "session/contest_file.h"
#include "session/data_folder.h"
#include "session/open_contest.h"
#include "session/recovery.h"
#include "storage/contest_reader.h"
#include "storage/contest_writer.h"
#include "text/format.h"

namespace scorvane {

namespace {

// The lists that together are the table of saves, one line each per save.
constexpr std::array kTable = {IDC_SAVE_TIMES, IDC_SAVE_CONTESTANTS, IDC_SAVE_SCORES,
                               IDC_SAVE_CHANGES};
constexpr std::size_t kChangesWidth = 60;

// Where the hour begins in a time's text.
constexpr std::size_t kHour = 13;

// Such as "Jul 18, 2026  2:31 PM", by the clock on the wall; all of one length.
std::string timeText(std::int64_t seconds) {
  const auto time = static_cast<std::time_t>(seconds);
  const std::tm* local = std::localtime(&time);
  if (local == nullptr) return "-";
  std::array<char, 64> text{};
  std::strftime(text.data(), text.size(), "%b %d, %Y %I:%M %p", local);
  if (text[kHour] == '0') text[kHour] = ' ';
  return text.data();
}

std::string nameOf(const EarlierSave& save) {
  std::string time = timeText(save.time);
  if (time.size() > kHour && time[kHour] == ' ') time.erase(kHour, 1);
  return (save.isUnsavedRest ? "the unsaved work of " : "the save of ") + time;
}

std::optional<Contest> contestOf(const EarlierSave& save) {
  const auto bytes = readEarlierSave(sessionFiles(), save);
  if (!bytes) return std::nullopt;
  auto reading = readContest(*bytes);
  auto* contest = std::get_if<Contest>(&reading);
  return contest == nullptr ? std::nullopt : std::optional(std::move(*contest));
}

// What an unsaved rest holds is told by what it would change, as no save followed it.
std::string changesText(const EarlierSave& save, const Contest& contest, const Contest& next) {
  if (save.contestPath.empty()) return "never saved: " + contest.settings.contestName;
  if (!save.isUnsavedRest) return changeSummary(contest, next, kChangesWidth);
  return "not saved: " + changeSummary(next, contest, kChangesWidth - 11);
}

void selectRow(Dialog& dialog, std::optional<int> line) {
  for (const ControlId list : kTable) dialog.select(list, line);
}

void saveAs(Dialog& dialog, const EarlierSave& save) {
  const auto path = dialog.chooseFile(contestFileQuestion(FileQuestion::Purpose::save));
  if (!path) return;
  FileSystem& files = sessionFiles();
  if (!currentFileName().empty() && reachesSameFile(files, *path, currentFileName())) {
    dialog.show("This is the file of the open contest.  Go Back puts an earlier save into it.",
                "Error");
    return;
  }
  const auto bytes = readEarlierSave(files, save);
  if (!bytes || !saveElsewhere(*path, *bytes)) {
    dialog.show("The earlier save could not be written to this file.  Choose another location.",
                "File Save Error");
  }
}

// Whether the contest as it is now can be gone back to.
bool keepPresentContest() {
  const std::string bytes = writeContest(currentContest());
  const std::string& path = currentFileName();
  if (path.empty() && bytes == writeContest(newContest())) return true;
  FileSystem& files = sessionFiles();
  const bool isSaved = files.readWhole(path) == bytes;
  return keepEarlierSave(files, path, bytes, !isSaved) != Keeping::failed;
}

}  // namespace

EarlierSavesDialog::EarlierSavesDialog(std::vector<EarlierSave> saves) : saves_(std::move(saves)) {}

void EarlierSavesDialog::onOpen(Dialog& dialog) {
  std::array<std::vector<std::string>, kTable.size()> columns;
  Contest next = currentContest();
  for (const EarlierSave& save : saves_) {
    auto contest = contestOf(save);
    columns[0].push_back(timeText(save.time));
    columns[1].push_back(contest ? formatText("%8zu", countNamed(*contest)) : "");
    columns[2].push_back(
        contest ? formatText("%8lld", static_cast<long long>(countScores(*contest))) : "");
    columns[3].push_back(contest ? changesText(save, *contest, next) : "cannot be read");
    if (contest && !save.isUnsavedRest) next = std::move(*contest);
  }
  dialog.linkScrolling({kTable.begin(), kTable.end()});
  for (std::size_t i = 0; i < kTable.size(); ++i) dialog.setLines(kTable[i], columns[i]);
  selectRow(dialog, 0);
  dialog.focus(IDC_SAVE_TIMES);
}

void EarlierSavesDialog::onEvent(Dialog& dialog, ControlId id, ControlEvent event) {
  if (event == ControlEvent::selectionChanged) selectRow(dialog, dialog.selection(id));
  if (event != ControlEvent::clicked) return;
  if (id == kCancelId) return dialog.end(kCancelId);
  const auto line = dialog.selection(IDC_SAVE_TIMES);
  if (line) onClicked(dialog, id, saves_[static_cast<std::size_t>(*line)]);
}

void EarlierSavesDialog::onClose(Dialog& dialog) {
  dialog.end(kCancelId);
}

void EarlierSavesDialog::onClicked(Dialog& dialog, ControlId id, const EarlierSave& save) {
  auto contest = contestOf(save);
  if (!contest) {
    dialog.show("This earlier save cannot be read any more.", "Error");
  } else if (id == IDC_SHOW_DIFFERENCES || id == IDC_CHANGES_SINCE) {
    compared_ = {std::move(*contest), nameOf(save)};
    dialog.end(id);
  } else if (id == IDC_GO_BACK) {
    goBack(dialog, save, std::move(*contest));
  } else if (id == IDC_WRITE_SAVE) {
    saveAs(dialog, save);
  }
}

void EarlierSavesDialog::goBack(Dialog& dialog, const EarlierSave& save, Contest contest) {
  if (!dialog.confirm("This will make the contest what it was in " + nameOf(save) +
                      ".  What it is now becomes an earlier save, too.  Continue?")) {
    return;
  }
  if (!keepPresentContest()) {
    dialog.show(
        "The contest could not be kept as it is now, so it was left unchanged.  Perhaps the disk "
        "is full.  Save As puts the earlier save into a file of its own.",
        "Error");
    return;
  }
  currentContest() = std::move(contest);
  contestChanged();  // what is kept of the old one must not come back if this is not saved
  saveCurrent(dialog);
  dialog.end(IDC_GO_BACK);
}

}  // namespace scorvane
