#include "model/reasons_places.h"

#include <utility>

#include "text/format.h"

namespace scorvane {

namespace {

void unassignThoseWithoutCell(Contest& contest) {
  for (auto& [number, place] : contest.reasonsPlace) {
    if (!place.isAssigned()) continue;
    if (contest.reasonsOrder.cell(place.position, place.group) != number) place = {};
  }
}

}  // namespace

std::int64_t reasonsRows(const Contest& contest) {
  return static_cast<std::int64_t>(contest.teams.size()) * contest.settings.totalNumPerTeam;
}

void resetReasonsOrder(Contest& contest, std::int64_t rows) {
  contest.reasonsOrder.reset(rows, contest.settings.numReasonsGroups);
  contest.reasonsPlace.clear();
  for (const auto& [number, name] : contest.contestantNames) contest.reasonsPlace[number] = {};
}

void rebuildReasonsOrder(Contest& contest) {
  ReasonsOrder& order = contest.reasonsOrder;
  order.reset(reasonsRows(contest), contest.settings.numReasonsGroups);
  std::vector<ReasonsOrder::Cells::Entry> cells;
  std::size_t assigned = 0;
  for (const auto& [number, place] : contest.reasonsPlace) {
    if (!place.isAssigned()) continue;
    ++assigned;
    if (place.group >= order.columnCount()) continue;
    cells.push_back({{place.group, place.position}, number});
  }
  order.setCells(std::move(cells));
  if (order.cells().size() != assigned) unassignThoseWithoutCell(contest);
}

void setReasonsPlace(Contest& contest, ContestantNumber number, ReasonsPlace place) {
  contest.reasonsOrder.setCell(place.position, place.group, number);
  contest.reasonsPlace[number] = place;
}

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

void leaveReasonsOrder(Contest& contest, ContestantNumber number) {
  ReasonsPlace& place = contest.reasonsPlace[number];
  if (place.group > 0 && place.position > 0) {
    contest.reasonsOrder.setCell(place.position, place.group, kNobody);
  }
  place = ReasonsPlace{};
  compactReasonsOrder(contest);
}

bool clearReasonsCells(Contest& contest, ContestantNumber number) {
  const ReasonsOrder::Cells& cells = contest.reasonsOrder.cells();
  std::vector<ReasonsOrder::Cells::Entry> kept(cells.begin(), cells.end());
  if (std::erase_if(kept, [number](const auto& entry) { return entry.second == number; }) == 0) {
    return false;
  }
  contest.reasonsOrder.setCells(std::move(kept));
  return true;
}

std::vector<ContestantNumber> unassignedSpeakers(const Contest& contest) {
  std::vector<ContestantNumber> unassigned;
  for (const auto& [number, name] : contest.contestantNames) {
    const bool isAssigned = reasonsPlaceOf(contest, number).isAssigned();
    if (!name.empty() && !isAssigned) unassigned.push_back(number);
  }
  return unassigned;
}

std::string speakerLine(const Contest& contest, ContestantNumber number) {
  return formatText("     %d - %s", number, contestantName(contest, number).c_str());
}

}  // namespace scorvane
