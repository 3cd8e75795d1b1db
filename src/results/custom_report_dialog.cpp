#include "results/custom_report_dialog.h"

#include <algorithm>
#include <limits>

#include "results/custom_report_ids.h"
#include "session/open_contest.h"

namespace scorvane {

namespace {

void proposeCategory(Dialog& dialog) {
  const std::optional<int> category = dialog.selection(IDC_CUSTOM_CATEGORY);
  if (!category) return;
  const Contest& contest = currentContest();
  dialog.setText(IDC_CUSTOM_TITLE, categoryName(contest, *category));
  for (std::int32_t k = 0; k < contest.classes.count(); ++k) {
    dialog.setSelected(IDC_CUSTOM_CLASSES, k, contest.classes.category(k) == *category);
  }
}

ScoreKind kindTicked(const Dialog& dialog) {
  if (dialog.isChecked(IDC_CUSTOM_OVERALL)) return ScoreKind::overall;
  if (dialog.isChecked(IDC_CUSTOM_PLACINGS)) return ScoreKind::placings;
  if (dialog.isChecked(IDC_CUSTOM_REASONS)) return ScoreKind::reasons;
  return ScoreKind::questions;
}

// An empty field counts as 0; a number beyond every contest lists everybody.
std::int32_t numberTyped(const Dialog& dialog) {
  constexpr std::uint32_t most = std::numeric_limits<std::int32_t>::max();
  return static_cast<std::int32_t>(std::min(dialog.number(IDC_CUSTOM_NUMBER).value_or(0), most));
}

ReportRequest requestIn(const Dialog& dialog) {
  ReportRequest request;
  request.title = dialog.text(IDC_CUSTOM_TITLE);
  request.numToReport = numberTyped(dialog);
  request.percent = dialog.isChecked(IDC_CUSTOM_PERCENT);
  const std::vector<int> lines = dialog.selections(IDC_CUSTOM_CLASSES);
  request.classes.assign(lines.begin(), lines.end());
  request.kind = kindTicked(dialog);
  request.team = dialog.isChecked(IDC_CUSTOM_TEAM);
  return request;
}

}  // namespace

void CustomReportDialog::onOpen(Dialog& dialog) {
  Contest& contest = currentContest();
  if (contest.categories.empty()) contest.categories.emplace_back(kNoCategory);
  dialog.setLines(IDC_CUSTOM_CATEGORY, contest.categories);
  dialog.setNumber(IDC_CUSTOM_NUMBER, contest.settings.numToReport);
  dialog.setChecked(IDC_CUSTOM_PERCENT, contest.settings.reportPercent);
  dialog.setChecked(IDC_CUSTOM_OVERALL, true);
  for (const ControlId other :
       {IDC_CUSTOM_PLACINGS, IDC_CUSTOM_REASONS, IDC_CUSTOM_QUESTIONS, IDC_CUSTOM_TEAM}) {
    dialog.setChecked(other, false);
  }
  dialog.setLines(IDC_CUSTOM_CLASSES, contest.classes.className);
}

void CustomReportDialog::onEvent(Dialog& dialog, ControlId id, ControlEvent event) {
  if (event == ControlEvent::selectionChanged && id == IDC_CUSTOM_CATEGORY) proposeCategory(dialog);
  if (event != ControlEvent::clicked) return;
  if (id == kOkId) {
    request_ = requestIn(dialog);
    dialog.end(kOkId);
  }
  if (id == kCancelId) dialog.end(kCancelId);
}

void CustomReportDialog::onClose(Dialog& dialog) {
  dialog.end(kCancelId);
}

}  // namespace scorvane
