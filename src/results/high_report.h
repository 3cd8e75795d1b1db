// What the high individual and high team reports are asked for.
#pragma once

#include <cstdint>
#include <string>

#include "results/contestant_totals.h"

namespace scorvane {

struct HighReportRequest {
  ClassSet classes;
  ScoreKind kind = ScoreKind::overall;
  std::int32_t numToReport = 0;  ///< rows, or per cent of them
  bool percent = false;
  std::string title;
};

/// The request of the menu commands: every class, number and percentage as set, no title.
[[nodiscard]] HighReportRequest wholeContestRequest(const Contest& contest, ScoreKind kind);

/// How many of `available` rows a report lists: the number to report, or that percentage of them
/// in double precision, cut to a whole number. The reports list one row at least even for 0.
[[nodiscard]] std::int64_t rowsToList(const HighReportRequest& request, std::size_t available);

}  // namespace scorvane
