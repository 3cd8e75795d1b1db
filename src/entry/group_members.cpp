#include "entry/group_members.h"

namespace scorvane {

std::vector<ContestantNumber> groupMembers(const Contest& contest, char group) {
  std::vector<ContestantNumber> members;
  for (const auto& [number, name] : contest.contestantNames) {
    const char* letter = contest.contestantGroup.find(number);
    if (!name.empty() && letter != nullptr && *letter == group) members.push_back(number);
  }
  return members;
}

std::vector<ContestantNumber> groupSpeakers(const Contest& contest, std::int32_t reasonsGroup) {
  const ReasonsOrder::Cells& cells = contest.reasonsOrder.cells();
  std::vector<ContestantNumber> speakers;
  auto cell = cells.lowerBound({reasonsGroup, 0});
  for (; cell != cells.end() && cell->first.first == reasonsGroup; ++cell) {
    speakers.push_back(cell->second);
  }
  return speakers;
}

std::vector<ContestantNumber> speakersUpToHole(const ReasonsOrder& order,
                                               std::int32_t reasonsGroup) {
  // Odd but required, docs/required-behaviour.md: hole-in-a-reasons-group
  std::int32_t row = order.cell(0, reasonsGroup) == kNobody ? 1 : 0;
  std::vector<ContestantNumber> speakers;
  for (; order.cell(row, reasonsGroup) != kNobody; ++row) {
    speakers.push_back(order.cell(row, reasonsGroup));
  }
  return speakers;
}

EnteredCount countEntered(const Contest& contest, const std::vector<ContestantNumber>& contestants,
                          std::int32_t classIndex, ScoreField score) {
  EnteredCount count;
  for (const ContestantNumber number : contestants) {
    if (contestantName(contest, number).empty()) continue;
    // Odd but required, docs/required-behaviour.md: zero-counts-as-not-entered
    ++(scoreRecord(contest, number, classIndex).*score != 0 ? count.entered : count.missing);
  }
  return count;
}

}  // namespace scorvane
