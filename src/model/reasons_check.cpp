#include "model/reasons_check.h"

#include "text/format.h"

std::string reasonsOrderFault(const Contest& contest) {
  const ReasonsOrder& order = contest.reasonsOrder;
  for (const auto& [cell, contestant] : order.cells()) {
    const auto [group, row] = cell;
    if (group < 0 || group >= contest.settings.numReasonsGroups) {
      return formatText("contestant %d stands in group %d, which does not exist", contestant,
                        group);
    }
    const ReasonsPlace* place = contest.reasonsPlace.find(contestant);
    if (place == nullptr || *place != ReasonsPlace{group, row}) {
      return formatText("contestant %d stands in group %d, row %d, but the place says otherwise",
                        contestant, group, row);
    }
  }
  for (const auto& [contestant, place] : contest.reasonsPlace) {
    if (place.isAssigned() && order.cell(place.position, place.group) != contestant) {
      return formatText("contestant %d has a place in group %d, row %d, but does not stand there",
                        contestant, place.group, place.position);
    }
  }
  return {};
}
