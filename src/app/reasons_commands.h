// The commands of the reasons order and of what is printed from it.
#pragma once

#include <optional>
#include <string>

#include "app/main_window.h"
#include "app/report_request.h"
#include "model/contest.h"

namespace scorvane {

/// Asks, deals the reasons order out anew with the clock as seed, saves and shows the order. When
/// the operator declines or no order can be made, nothing changes and the report on screen stays.
void runGenerateReasonsOrder(MainWindow& window);
/// Runs the editor, then shows the order.
void runEditReasonsOrder(MainWindow& window);
/// Ask for a reasons class and show its sheet; the report on screen stays when there is none.
void showReasonsOrderSheet(MainWindow& window);
void showReasonsVerificationSheet(MainWindow& window);

std::optional<std::string> plainReasonsOrder(const Contest& contest, const ReportRequest& request);
std::optional<std::string> roomReasonsOrder(const Contest& contest, const ReportRequest& request);

/// The sheets of the class asked for: nothing without one, when it has no reasons, or when the
/// reasons order has no rows.
std::optional<std::string> reasonsOrderSheet(const Contest& contest, const ReportRequest& request);
std::optional<std::string> reasonsVerificationSheet(const Contest& contest,
                                                    const ReportRequest& request);

}  // namespace scorvane
