#include "results/custom_report.h"

#include "results/high_individual_report.h"
#include "results/high_team_report.h"

namespace scorvane {

std::string customReport(const Contest& contest, HighReportRequest request, bool team) {
  if (request.classes.size() > kMostCustomClasses) request.classes.resize(kMostCustomClasses);
  if (request.title.size() > kLongestCustomTitle) request.title.resize(kLongestCustomTitle);
  return team ? highTeamReport(contest, request) : highIndividualReport(contest, request);
}

}  // namespace scorvane
