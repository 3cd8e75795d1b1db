// A contestant's scores added up for a ranking: the ranked score and the values that break ties.
#pragma once

#include <cstdint>
#include <vector>

#include "model/contest.h"
#include "results/score_kind.h"

namespace scorvane {

/// Class indexes (from 0) that a ranked score is summed over.
using ClassSet = std::vector<std::int32_t>;

/// Every class of the contest.
[[nodiscard]] ClassSet allClasses(const Contest& contest);

/// Sums of scores. They count modulo 2^32, so that absurd scores of a damaged file cannot do harm.
struct RankValues {
  std::int32_t score = 0;                 ///< the kind's scores over the class set
  std::int32_t totalReasons = 0;          ///< reasons scores of all classes with reasons
  std::int32_t reasonsClassPlacings = 0;  ///< placing scores of all classes with reasons; when
                                          ///< questions are ranked, of all with questions
  std::int32_t totalOverall = 0;          ///< all three scores over all classes
  std::int32_t setReasons = 0;            ///< reasons scores over the class set; when questions
                                          ///< are ranked, questions scores
  friend bool operator==(const RankValues&, const RankValues&) = default;
};

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

/// Sum modulo 2^32.
[[nodiscard]] constexpr std::int32_t wrappingSum(std::int32_t a, std::int32_t b) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
}

}  // namespace scorvane
