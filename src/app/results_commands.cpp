#include "app/results_commands.h"

#include "results/custom_report.h"
#include "results/custom_report_dialog.h"

namespace scorvane {

void runCustomReport(MainWindow& window) {
  CustomReportDialog behaviour;
  window.runDialog(CustomReportDialog::kResourceId, behaviour);
  window.refreshReportView();
}

std::optional<std::string> customReportAskedFor(const Contest& contest,
                                                const ReportRequest& request) {
  const CustomReportRequest& custom = request.custom;
  if (custom.kind < 0 || custom.kind >= static_cast<int>(kScoreKinds.size())) return std::nullopt;
  HighReportRequest asked = wholeContestRequest(contest, static_cast<ScoreKind>(custom.kind));
  asked.classes = custom.classes;
  asked.title = custom.title;
  asked.numToReport = custom.numToReport.value_or(asked.numToReport);
  asked.percent = custom.percent.value_or(asked.percent);
  return customReport(contest, asked, custom.team);
}

}  // namespace scorvane
