// The commands of the rankings.
#pragma once

#include <optional>
#include <string>

#include "app/main_window.h"
#include "app/report_request.h"
#include "results/high_individual_report.h"
#include "results/high_team_report.h"

namespace scorvane {

/// The High Individual and High Team reports over every class, with the contest's own number.
template <ScoreKind kind>
std::optional<std::string> highIndividual(const Contest& contest,
                                          const ReportRequest& /*request*/) {
  return highIndividualReport(contest, wholeContestRequest(contest, kind));
}
template <ScoreKind kind>
std::optional<std::string> highTeam(const Contest& contest, const ReportRequest& /*request*/) {
  return highTeamReport(contest, wholeContestRequest(contest, kind));
}

/// Opens the Custom Report dialog and shows the report it makes. Cancelled, it leaves the report
/// on screen as it is.
void runCustomReport(MainWindow& window);

/// The report that the dialog would make of the same choices; nothing for an unknown kind.
std::optional<std::string> customReportAskedFor(const Contest& contest,
                                                const ReportRequest& request);

}  // namespace scorvane
