// The list of the best teams.
#pragma once

#include "results/high_report.h"

namespace scorvane {

/// The teams from the best down, each with its regular members, every member's own score (whether
/// it counted or not) and its coach. Alternates are not listed. Places are the running numbers of
/// the teams. A percentage is taken of all teams.
[[nodiscard]] std::string highTeamReport(const Contest& contest, const HighReportRequest& request);

}  // namespace scorvane
