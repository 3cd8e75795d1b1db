#include "results/high_individual_report.h"

#include <algorithm>

#include "model/team_index.h"
#include "results/individual_ranking.h"
#include "text/format.h"

namespace scorvane {

namespace {

constexpr std::size_t kRuleLength = 93;

std::size_t countNamed(const Contest& contest) {
  return static_cast<std::size_t>(
      std::count_if(contest.contestantNames.begin(), contest.contestantNames.end(),
                    [](const auto& entry) { return !entry.second.empty(); }));
}

void appendHeading(std::string& out, const HighReportRequest& request) {
  appendFormat(out, "High Individual %s %s\n\n", scoreKindWord(request.kind),
               request.title.c_str());
  appendFormat(out, "%5.5s  %-30.30s  %-30.30s  %5.5s    %12.12s\n", "Place", "Contestant Name",
               "Team Name", "Score", "Tie Breakers");
  out.append(kRuleLength, '-').append("\n");
}

void appendRow(std::string& out, int place, const std::string& name, const std::string& team,
               std::int32_t score, const TieColumns& ties) {
  const auto& [first, second, third] = ties.values;
  switch (ties.count) {
    case 0:
      appendFormat(out, "%5d  %-30.30s  %-30.30s  %5d\n", place, name.c_str(), team.c_str(), score);
      break;
    case 1:
      appendFormat(out, "%5d  %-30.30s  %-30.30s  %5d  %6d\n", place, name.c_str(), team.c_str(),
                   score, first);
      break;
    case 2:
      appendFormat(out, "%5d  %-30.30s  %-30.30s  %5d  %6d %6d\n", place, name.c_str(),
                   team.c_str(), score, first, second);
      break;
    default:
      appendFormat(out, "%5d  %-30.30s  %-30.30s  %5d  %6d %6d %6d\n", place, name.c_str(),
                   team.c_str(), score, first, second, third);
      break;
  }
}

}  // namespace

std::string highIndividualReport(const Contest& contest, const HighReportRequest& request) {
  const std::size_t named = countNamed(contest);
  const std::int64_t rows = rowsToList(request, named);
  const TieOrder order = tieOrderFor(contest, request.kind, request.classes);
  const auto ranking = rankIndividuals(contest, request.kind, request.classes);
  const TeamIndex teams(contest);

  std::string out;
  appendHeading(out, request);
  int place = 1;
  RankValues previous;
  for (std::size_t i = 0; i < ranking.size(); ++i) {
    const auto& [number, values] = ranking[i];
    const std::string& name = contestantName(contest, number);
    if (!name.empty()) {
      // The next entry counts even when its contestant has no name and is not listed.
      const bool hasNext = static_cast<std::size_t>(place) < named && i + 1 < ranking.size();
      const RankValues next = hasNext ? ranking[i + 1].values : RankValues{};
      appendRow(out, place, name, teams.teamOf(number), values.score,
                tieColumns(order, values, previous, next));
      previous = values;
      ++place;
    }
    // Asked after the row: a report of 0 rows still names the winner.
    if (place > rows) break;
  }
  return out;
}

}  // namespace scorvane
