// The lists of the best contestants and of the best teams.
#pragma once

#include <string>
#include <vector>

#include "model/contest.h"
#include "session/report_request.h"

namespace scorvane {

/// The contestants from the best down, with place, team, score and the values that split ties.
[[nodiscard]] std::string highIndividualReport(const Contest& contest,
                                               const ReportRequest& request);

/// The teams from the best down, each with its regular members, every member's own score (whether
/// it counted or not) and its coach. Alternates are not listed.
[[nodiscard]] std::string highTeamReport(const Contest& contest, const ReportRequest& request);

/// The report of individuals or of teams, as the request says, in parts that follow each other: its
/// heading, then one part a place.
[[nodiscard]] std::vector<std::string> highReportParts(const Contest& contest,
                                                       const ReportRequest& request);

/// One of the two, of teams or individuals as the request says. At most kMostCustomClasses of its
/// classes count, the first ones, and its title is cut to kLongestCustomTitle bytes.
[[nodiscard]] std::string customReport(const Contest& contest, ReportRequest request);
/// What customReport() makes of the request.
[[nodiscard]] ReportRequest customRequest(ReportRequest request);
inline constexpr std::size_t kMostCustomClasses = 50;
inline constexpr std::size_t kLongestCustomTitle = 499;

}  // namespace scorvane
