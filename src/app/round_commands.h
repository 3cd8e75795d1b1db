// The command that asks for a round.
#pragma once

#include <optional>
#include <string>

#include "app/main_window.h"
#include "app/report_request.h"
#include "model/contest.h"

namespace scorvane {

/// Opens the Round Verification dialog and shows the report it makes.
void runRoundVerification(MainWindow& window);

/// The report of the round asked for: nothing without one, or when the contest has no such round.
std::optional<std::string> roundVerification(const Contest& contest, const ReportRequest& request);

}  // namespace scorvane
