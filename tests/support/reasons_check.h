// Whether the reasons order and the contestants' places tell the same story.
#pragma once

#include <algorithm>

#include "model/contest.h"

namespace scorvane {

/// A contestant is in a cell of a reasons group exactly when the place names that cell. Deleting
/// somebody in the first row or the first group breaks this.
inline bool orderAgreesWithPlaces(const Contest& contest) {
  const ReasonsOrder& order = contest.reasonsOrder;
  return std::all_of(order.cells().begin(), order.cells().end(),
                     [&](const auto& entry) {
                       const auto [group, row] = entry.first;
                       return group < contest.settings.numReasonsGroups &&
                              reasonsPlaceOf(contest, entry.second) == ReasonsPlace{group, row};
                     }) &&
         std::all_of(
             contest.reasonsPlace.begin(), contest.reasonsPlace.end(), [&](const auto& entry) {
               const auto& [contestant, place] = entry;
               return !place.isAssigned() || order.cell(place.position, place.group) == contestant;
             });
}

}  // namespace scorvane
