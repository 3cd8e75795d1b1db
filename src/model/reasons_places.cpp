#include "model/reasons_places.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace scorvane {

void compactReasonsOrder(Contest& contest) {
  const ReasonsOrder::Cells& cells = contest.reasonsOrder.cells();
  std::vector<ReasonsOrder::Cells::Entry> compacted(cells.begin(), cells.end());
  std::int32_t group = kNobody;
  std::int32_t nextRow = 0;
  for (auto& [cell, contestant] : compacted) {
    if (cell.first >= contest.settings.numReasonsGroups) break;
    if (cell.first != group) {
      group = cell.first;
      nextRow = 0;
    }
    cell.second = nextRow++;
    ReasonsPlace* place = contest.reasonsPlace.find(contestant);
    if (place != nullptr && place->isAssigned()) place->position = cell.second;
  }
  contest.reasonsOrder.setCells(std::move(compacted));
}

void clearReasonsOrder(Contest& contest) {
  const auto rows =
      static_cast<std::int64_t>(contest.teams.size()) * contest.settings.totalNumPerTeam;
  contest.reasonsOrder.reset(rows, contest.settings.numReasonsGroups);
  contest.reasonsPlace.clear();
  for (const auto& [number, name] : contest.contestantNames) {
    contest.reasonsPlace[number] = ReasonsPlace{};
  }
}

void leaveReasonsOrder(Contest& contest, ContestantNumber number) {
  ReasonsPlace& place = contest.reasonsPlace[number];
  if (place.group > 0 && place.position > 0) {
    contest.reasonsOrder.setCell(place.position, place.group, kNobody);
  }
  place = ReasonsPlace{};
  compactReasonsOrder(contest);
}

}  // namespace scorvane
