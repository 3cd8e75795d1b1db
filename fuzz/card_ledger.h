// A ledger of cards, kept beside the contest: which scores were handed in under which number.
#pragma once

#include <map>
#include <set>

#include "model/contest.h"

namespace scorvane {

/// The cards of a number stay with its slot of a team. A number that is in no team and has left the
/// contest has none.
class CardLedger {
 public:
  /// Takes over what was opened, or entered as scores.
  void enter(const Contest& contest);

  /// Ends the run when setup changed a score, or somebody came into the contest with one.
  void watch(const Contest& contest);

  /// Ends the run unless contestFindings() tells exactly of the numbers and scores that are not one
  /// contestant's of one team and class.
  void checkFindings(const Contest& contest) const;

 private:
  using Cards = std::map<std::int32_t, ScoreRecord>;  ///< by class, those with a score

  [[nodiscard]] static Cards cardsOf(const Contest& contest, ContestantNumber number);
  void takeOver(const Contest& contest);

  std::set<ContestantNumber> present_;
  std::map<ContestantNumber, Cards> cards_;
};

}  // namespace scorvane
