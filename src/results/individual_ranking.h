// A contestant's scores added up, and the ranking of contestants.
#pragma once

#include <cstdint>
#include <vector>

#include "results/tie_breakers.h"

namespace scorvane {

struct IndividualRankEntry {
  ContestantNumber contestantNumber = 0;
  RankValues values;
};

/// The values of everybody who has scores, in ascending contestant number: entry i is the
/// contestant at position i of `contest.scores`. A class without a record counts as zeros; flags
/// of classes that do not exist count as not set.
[[nodiscard]] std::vector<IndividualRankEntry> contestantTotals(const Contest& contest,
                                                                ScoreKind kind,
                                                                const ClassSet& classSet);

/// Everybody who has scores, best first. Contestants with an empty name are ranked too; reports
/// leave them out.
[[nodiscard]] std::vector<IndividualRankEntry> rankIndividuals(
    std::vector<IndividualRankEntry> totals, TieOrder order);
/// Fills `top` with the first entries of the ranking; false when a true tie among them leaves open
/// which these are.
[[nodiscard]] bool rankTop(const std::vector<IndividualRankEntry>& totals, TieOrder order,
                           std::vector<IndividualRankEntry>& top);

/// Sum modulo 2^32.
[[nodiscard]] constexpr std::int32_t wrappingSum(std::int32_t a, std::int32_t b) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
}

}  // namespace scorvane
