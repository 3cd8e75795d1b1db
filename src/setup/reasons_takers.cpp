#include "setup/reasons_takers.h"

#include "text/format.h"

std::string takerLine(const Contest& contest, ContestantNumber number) {
  return formatText("     %d - %s", number, contestantName(contest, number).c_str());
}

std::vector<std::string> unassignedTakers(const Contest& contest) {
  std::vector<std::string> lines;
  for (const auto& [number, name] : contest.contestantNames) {
    const bool isAssigned = reasonsPlaceOf(contest, number).isAssigned();
    if (!name.empty() && !isAssigned) lines.push_back(takerLine(contest, number));
  }
  return lines;
}
