#include "exchange/import_roster_dialog.h"

#include <algorithm>
#include <utility>

#include "session/contest_file.h"
#include "session/open_contest.h"
#include "session/recovery.h"
#include "text/characters.h"
#include "text/decoding.h"
#include "text/format.h"

namespace scorvane {

namespace {

// A field shows only CR LF as a line end, and a text up to its first NUL.
std::string fieldTextOf(std::string_view utf8) {
  std::string text;
  for (std::size_t i = 0; i < utf8.size(); ++i) {
    const char c = utf8[i];
    if (c == '\r' && i + 1 < utf8.size() && utf8[i + 1] == '\n') continue;
    text += c == '\r' ? '\n' : c == '\0' ? ' ' : c;
  }
  return withWindowsLineEnds(text);
}

}  // namespace

void ImportRosterDialog::onOpen(Dialog& dialog) {
  showPlan(dialog);
  dialog.focus(IDC_ROSTER_TEXT);
}

void ImportRosterDialog::onEvent(Dialog& dialog, ControlId id, ControlEvent event) {
  if (id == IDC_ROSTER_TEXT && event == ControlEvent::textChanged) showPlan(dialog);
  if (event != ControlEvent::clicked) return;
  if (id == IDC_OPEN_ROSTER) openFile(dialog);
  if (id == kOkId) importPlan(dialog);
  if (id == kCancelId) onClose(dialog);
}

void ImportRosterDialog::onClose(Dialog& dialog) {
  dialog.end(kCancelId);
}

void ImportRosterDialog::showPlan(Dialog& dialog) {
  plan_ = planRoster(dialog.unicodeText(IDC_ROSTER_TEXT), currentContest());
  showLines(dialog, planLines(plan_, currentContest()));
  dialog.setText(IDC_ROSTER_SUMMARY, planSummary(plan_));
}

// A key pressed in a sheet of thousands of lines changes few of them.
void ImportRosterDialog::showLines(Dialog& dialog, std::vector<std::string> lines) {
  constexpr std::ptrdiff_t kFew = 200;
  const std::vector<std::string> old = std::exchange(lines_, std::move(lines));
  const auto [oldStart, newStart] =
      std::mismatch(old.begin(), old.end(), lines_.begin(), lines_.end());
  const auto [oldRest, newRest] =
      std::mismatch(old.rbegin(), std::make_reverse_iterator(oldStart), lines_.rbegin(),
                    std::make_reverse_iterator(newStart));
  const auto start = static_cast<int>(newStart - lines_.begin());
  std::ptrdiff_t gone = oldRest.base() - oldStart;
  if (gone + (newRest.base() - newStart) > kFew) return dialog.setLines(IDC_ROSTER_PLAN, lines_);
  for (; gone > 0; --gone) dialog.removeLine(IDC_ROSTER_PLAN, start);
  for (auto line = newStart; line != newRest.base(); ++line) {
    dialog.insertLine(IDC_ROSTER_PLAN, static_cast<int>(line - lines_.begin()), {*line, 0});
  }
}

void ImportRosterDialog::openFile(Dialog& dialog) {
  FileQuestion question;
  question.filters = {{"Sheets", "*.csv;*.tsv;*.txt"}, {"All", "*.*"}};
  question.fileMustExist = true;
  question.folder = contestFolder();
  const auto path = dialog.chooseFile(question);
  if (!path) return;
  const auto bytes = sessionFiles().readWhole(*path, kMostSheetBytes);
  if (!bytes) return dialog.show("This file cannot be read, or is no sheet of names.", "Error");
  dialog.setUnicodeText(IDC_ROSTER_TEXT, fieldTextOf(utf8OfFile(*bytes)));
  dialog.focus(IDC_ROSTER_TEXT);
}

void ImportRosterDialog::importPlan(Dialog& dialog) {
  if (plan_.holdsNobody) {
    dialog.show("There is no team and no contestant in the cells.", "Error");
    return dialog.focus(IDC_ROSTER_TEXT);
  }
  const auto problems = static_cast<int>(plan_.problems.size());
  if (problems > 0 &&
      !dialog.confirm(formatText("There %s %d problem%s.  Import the other lines without %s?",
                                 problems == 1 ? "is" : "are", problems, problems == 1 ? "" : "s",
                                 problems == 1 ? "its line" : "theirs"))) {
    return dialog.focus(IDC_ROSTER_TEXT);
  }
  importRoster(currentContest(), plan_);
  hasImported_ = true;
  saveCurrent(dialog);
  dialog.end(kOkId);
}

}  // namespace scorvane
