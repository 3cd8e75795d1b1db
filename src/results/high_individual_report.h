// The list of the best contestants.
#pragma once

#include "results/high_report.h"

namespace scorvane {

/// The contestants from the best down, with place, team, score and the values that split ties.
/// Places are the running numbers of the rows: tied contestants never share one. A percentage is
/// taken of the contestants with a name.
[[nodiscard]] std::string highIndividualReport(const Contest& contest,
                                               const HighReportRequest& request);

}  // namespace scorvane
