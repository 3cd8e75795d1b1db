// Merging what two people changed in one contest since both had it last.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "model/contest.h"
#include "model/contest_differences.h"

namespace scorvane {

/// What one side removed and the other changed or scored, so that it stays.
struct LostRemoval {
  DifferenceKind kind = DifferenceKind::contestant;
  std::string subject;  ///< as in Difference, with the class's name
  bool removedHere = false;
};

/// Somebody who has another number now than on the cards of one side.
struct NumberChange {
  ContestantNumber from = 0;
  ContestantNumber to = 0;
  std::string team;
};

struct Merge {
  Contest contest;
  std::vector<Difference> values;       ///< that both sides changed differently; here is ours
  std::vector<ContestantScore> scores;  ///< likewise, in the order in which cards lie
  std::vector<LostRemoval> lostRemovals;
  std::vector<NumberChange> numbers;  ///< by old number

  /// Whether there is nothing to look after by hand.
  [[nodiscard]] bool isSmooth() const {
    return values.empty() && scores.empty() && lostRemovals.empty() && numbers.empty();
  }
};

/// Joins what both sides changed since `base`, value by value; where both changed the same value to
/// different ones, ours stays. The result is as it would be after saving and loading, but that
/// group letters set by hand stay while both the starting number and the number of groups are ours.
[[nodiscard]] Merge mergeContests(const Contest& base, const Contest& ours, const Contest& theirs);

/// Whether `other` still is the contest that `ancestor` was: it has at least half of its class
/// names, and at least half of its people, by name and either number or team.
[[nodiscard]] bool isSameContest(const Contest& ancestor, const Contest& other);

/// "131 to 134 are now 135 to 138", a line for each run of numbers.
[[nodiscard]] std::vector<std::string> numberChangeLines(const std::vector<NumberChange>& numbers);

}  // namespace scorvane
