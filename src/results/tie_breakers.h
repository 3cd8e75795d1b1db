// The three orderings of the rankings, and which of their tie-breaking values a report shows.
//
// A ranking compares the score first and then the ordering's further values. Entries equal in all
// of them are a true tie: neither number nor name decides it. std::sort then leaves them in an
// order of its own, always the same one for the same contest
// (odd but required, docs/required-behaviour.md: true-ties-in-any-order).
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "model/contest.h"
#include "session/report_request.h"

namespace scorvane {

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

enum class TieOrder { overall, reasons, category };

/// The ordering of a ranking: reasons for the kinds Reasons and Questions, otherwise category when
/// the class set holds fewer classes than the contest, otherwise overall.
[[nodiscard]] TieOrder tieOrderFor(const Contest& contest, ScoreKind kind,
                                   const ClassSet& classSet);

struct RankField {
  std::int32_t RankValues::*field = nullptr;
  bool largerFirst = true;
};

/// What the orderings compare, most important first. All fields but the first break ties.
inline constexpr std::array kOverallFields = {RankField{&RankValues::score},
                                              RankField{&RankValues::totalReasons},
                                              RankField{&RankValues::reasonsClassPlacings, false}};
inline constexpr std::array kReasonsFields = {RankField{&RankValues::score},
                                              RankField{&RankValues::reasonsClassPlacings, false},
                                              RankField{&RankValues::totalOverall}};
inline constexpr std::array kCategoryFields = {
    RankField{&RankValues::score}, RankField{&RankValues::setReasons},
    RankField{&RankValues::totalReasons}, RankField{&RankValues::totalOverall}};

/// Whether `a` ranks before `b`; a strict ordering.
template <typename Fields>
[[nodiscard]] constexpr bool ranksBefore(const Fields& fields, const RankValues& a,
                                         const RankValues& b) {
  for (const RankField& rank : fields) {
    const std::int32_t mine = a.*rank.field;
    const std::int32_t other = b.*rank.field;
    if (mine != other) return rank.largerFirst ? mine > other : mine < other;
  }
  return false;
}

/// Calls `use` with the comparison of ranking entries, which have their sums in a member `values`.
template <typename Use>
auto withRank(TieOrder order, const Use& use) {
  const auto useFields = [&](const auto& fields) {
    return use([&fields](const auto& a, const auto& b) {
      return ranksBefore(fields, a.values, b.values);
    });
  };
  if (order == TieOrder::reasons) return useFields(kReasonsFields);
  return order == TieOrder::category ? useFields(kCategoryFields) : useFields(kOverallFields);
}

template <typename Entry>
void sortByRank(std::vector<Entry>& entries, TieOrder order) {
  withRank(order, [&](const auto& before) { std::sort(entries.begin(), entries.end(), before); });
}

/// The tie-breaking values that a row of a results report shows, in order.
struct TieColumns {
  TieOrder order = TieOrder::overall;
  std::array<std::int32_t, 3> values{};
  int count = 0;
};

/// Exactly the values that were needed to separate a row from the rows above and below it: none
/// when its score differs from both, one when a score is equal, one more for every further value
/// that is equal too. The ends of the list are compared with zeros.
[[nodiscard]] TieColumns tieColumns(TieOrder order, const RankValues& row,
                                    const RankValues& previous, const RankValues& next);

/// How a row stands to the listed rows before and after it.
struct TieOutcome {
  bool equalsPrevious = false;  ///< in everything that the ordering compares: a true tie
  bool equalsNext = false;
  /// What put it before the next row of the same score: 1 for the ordering's first value that
  /// breaks ties, and so on; 0 when the scores differ or nothing does.
  int rule = 0;
  std::int32_t own = 0;  ///< the deciding values
  std::int32_t next = 0;
};

/// Compares two rows that follow each other and notes the outcome with both.
void noteTie(TieOrder order, const RankValues& row, TieOutcome& ofRow, const RankValues& next,
             TieOutcome& ofNext);

/// The rules in plain words for the officials, the same for every contest. To be changed together
/// with the orderings.
[[nodiscard]] std::string tieBreakerReport();

}  // namespace scorvane
