// A ledger of cards, kept beside the contest: which scores were handed in under which number.
#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <utility>

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

  /// Ends the run when moving, exchanging or clearing made a score that nobody handed in, or
  /// changed those of somebody who is no contestant.
  void move(const Contest& contest);

  /// Ends the run unless contestFindings() tells exactly of the numbers and scores that are not one
  /// contestant's of one team and class.
  void checkFindings(const Contest& contest) const;

 private:
  using Cards = std::map<std::int32_t, ScoreRecord>;  ///< by class, those with a score

  using Scores = std::map<std::pair<int, std::int64_t>, int>;  ///< how often by kind and value

  [[nodiscard]] static Cards cardsOf(const Contest& contest, ContestantNumber number);
  [[nodiscard]] Scores scores() const;
  void takeOver(const Contest& contest);

  std::set<ContestantNumber> present_;
  std::map<ContestantNumber, Cards> cards_;
};

}  // namespace scorvane
