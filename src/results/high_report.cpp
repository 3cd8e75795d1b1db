#include "results/high_report.h"

namespace scorvane {

HighReportRequest wholeContestRequest(const Contest& contest, ScoreKind kind) {
  return {.classes = allClasses(contest),
          .kind = kind,
          .numToReport = contest.settings.numToReport,
          .percent = contest.settings.reportPercent,
          .title = {}};
}

std::int64_t rowsToList(const HighReportRequest& request, std::size_t available) {
  if (!request.percent) return request.numToReport;
  return static_cast<std::int64_t>((request.numToReport / 100.0) * static_cast<double>(available));
}

}  // namespace scorvane
