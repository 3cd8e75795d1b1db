// Ranking of contestants.
#pragma once

#include <vector>

#include "results/tie_breakers.h"

namespace scorvane {

/// Everybody who has scores, best first, by the kind's scores over the class set. Contestants with
/// an empty name are ranked too; reports leave them out.
[[nodiscard]] std::vector<IndividualRankEntry> rankIndividuals(const Contest& contest,
                                                               ScoreKind kind,
                                                               const ClassSet& classSet);

}  // namespace scorvane
