// The commands of the reasons order and of what is printed from it.
#pragma once

#include <optional>
#include <string>

#include "app/main_window.h"
#include "app/report_request.h"
#include "model/contest.h"

std::optional<std::string> plainReasonsOrder(const Contest& contest, const ReportRequest& request);
std::optional<std::string> roomReasonsOrder(const Contest& contest, const ReportRequest& request);

/// The sheets of the class asked for: nothing without one, when it has no reasons, or when the
/// reasons order has no rows.
std::optional<std::string> reasonsOrderSheet(const Contest& contest, const ReportRequest& request);
std::optional<std::string> reasonsVerificationSheet(const Contest& contest,
                                                    const ReportRequest& request);
