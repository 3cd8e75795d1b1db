#include "setup/reasons_compaction.h"

#include <utility>
#include <vector>

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
