#include "reasons/speakers.h"

#include "text/format.h"

namespace scorvane {

std::string speakerLine(const Contest& contest, ContestantNumber number) {
  return formatText("     %d - %s", number, contestantName(contest, number).c_str());
}

std::vector<ContestantNumber> unassignedSpeakers(const Contest& contest) {
  std::vector<ContestantNumber> unassigned;
  for (const auto& [number, name] : contest.contestantNames) {
    const bool isAssigned = reasonsPlaceOf(contest, number).isAssigned();
    if (!name.empty() && !isAssigned) unassigned.push_back(number);
  }
  return unassigned;
}

}  // namespace scorvane
