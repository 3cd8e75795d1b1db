#include "results/individual_ranking.h"

namespace scorvane {

std::vector<IndividualRankEntry> rankIndividuals(const Contest& contest, ScoreKind kind,
                                                 const ClassSet& classSet) {
  std::vector<IndividualRankEntry> ranking = contestantTotals(contest, kind, classSet);
  sortByRank(ranking, tieOrderFor(contest, kind, classSet));
  return ranking;
}

}  // namespace scorvane
