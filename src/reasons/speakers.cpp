#include "reasons/speakers.h"

#include "text/format.h"

namespace scorvane {

std::string speakerLine(const Contest& contest, ContestantNumber number) {
  return formatText("     %d - %s", number, contestantName(contest, number).c_str());
}

std::vector<std::string> unassignedSpeakers(const Contest& contest) {
  std::vector<std::string> lines;
  for (const auto& [number, name] : contest.contestantNames) {
    const bool isAssigned = reasonsPlaceOf(contest, number).isAssigned();
    if (!name.empty() && !isAssigned) lines.push_back(speakerLine(contest, number));
  }
  return lines;
}

}  // namespace scorvane
