#include "app/round_commands.h"

#include "reports/round_reports.h"
#include "reports/round_verification_dialog.h"

namespace scorvane {

void runRoundVerification(MainWindow& window) {
  RoundVerificationDialog behaviour;
  window.runDialog(RoundVerificationDialog::kResourceId, behaviour);
  window.refreshReportView();
}

std::optional<std::string> roundVerification(const Contest& contest, const ReportRequest& request) {
  const std::int32_t round = request.round.value_or(-1);
  if (round < 0 || round >= contest.classes.count()) return std::nullopt;
  return roundVerificationReport(contest, round);
}

}  // namespace scorvane
