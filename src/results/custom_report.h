// The results report over classes, kind, number and title of one's own choice.
#pragma once

#include "results/high_report.h"

namespace scorvane {

/// Of more classes than this, the first ones count.
inline constexpr std::size_t kMostCustomClasses = 50;
/// A longer title is cut.
inline constexpr std::size_t kLongestCustomTitle = 499;

/// The high team report with `team`, the high individual report otherwise.
[[nodiscard]] std::string customReport(const Contest& contest, HighReportRequest request,
                                       bool team);

}  // namespace scorvane
