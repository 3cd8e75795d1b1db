#include "results/custom_report_dialog.h"

#include <algorithm>
#include <limits>

#include "results/custom_report.h"
#include "session/open_contest.h"

namespace scorvane {

namespace {

using Custom = CustomReportDialog;

void proposeCategory(Dialog& dialog) {
  const std::optional<int> category = dialog.selection(Custom::kCategory);
  if (!category) return;
  const Contest& contest = currentContest();
  dialog.setText(Custom::kTitle, categoryName(contest, *category));
  for (std::int32_t k = 0; k < contest.classes.count(); ++k) {
    dialog.setSelected(Custom::kClasses, k, contest.classes.category(k) == *category);
  }
}

ScoreKind kindTicked(const Dialog& dialog) {
  if (dialog.isChecked(Custom::kOverall)) return ScoreKind::overall;
  if (dialog.isChecked(Custom::kPlacings)) return ScoreKind::placings;
  if (dialog.isChecked(Custom::kReasons)) return ScoreKind::reasons;
  return ScoreKind::questions;
}

// An empty field counts as 0; a number beyond every contest lists everybody.
std::int32_t numberTyped(const Dialog& dialog) {
  constexpr std::uint32_t most = std::numeric_limits<std::int32_t>::max();
  return static_cast<std::int32_t>(std::min(dialog.number(Custom::kNumber).value_or(0), most));
}

void makeReport(Dialog& dialog) {
  HighReportRequest request;
  request.title = dialog.text(Custom::kTitle);
  request.numToReport = numberTyped(dialog);
  request.percent = dialog.isChecked(Custom::kPercent);
  const std::vector<int> lines = dialog.selections(Custom::kClasses);
  request.classes.assign(lines.begin(), lines.end());
  request.kind = kindTicked(dialog);
  reportText() = customReport(currentContest(), request, dialog.isChecked(Custom::kTeam));
  dialog.end(kOkId);
}

}  // namespace

void CustomReportDialog::onOpen(Dialog& dialog) {
  Contest& contest = currentContest();
  if (contest.categories.empty()) contest.categories.emplace_back(kNoCategory);
  dialog.setLines(kCategory, contest.categories);
  dialog.setNumber(kNumber, contest.settings.numToReport);
  dialog.setChecked(kPercent, contest.settings.reportPercent);
  dialog.setChecked(kOverall, true);
  for (const ControlId other : {kPlacings, kReasons, kQuestions, kTeam}) {
    dialog.setChecked(other, false);
  }
  dialog.setLines(kClasses, contest.classes.className);
}

void CustomReportDialog::onEvent(Dialog& dialog, ControlId id, ControlEvent event) {
  if (event == ControlEvent::selectionChanged && id == kCategory) proposeCategory(dialog);
  if (event != ControlEvent::clicked) return;
  if (id == kOkId) makeReport(dialog);
  if (id == kCancelId) dialog.end(kCancelId);
}

void CustomReportDialog::onClose(Dialog& dialog) {
  dialog.end(kCancelId);
}

}  // namespace scorvane
