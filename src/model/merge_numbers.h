// Which number everybody has after a merge.
#pragma once

#include <functional>
#include <set>
#include <vector>

#include "model/merge_values.h"

namespace scorvane {

class MergedNumbers {
 public:
  explicit MergedNumbers(MergeState& state) : state_(state), roster_(state.roster) {}

  /// Decides the number of everybody who stays, and lists the changes.
  void give();
  /// A number that nobody has, as in Setup Teams the one after the largest.
  ContestantNumber nextFree();

 private:
  using Person = std::size_t;
  using IsOnlyTheirs = std::function<bool(Person)>;

  bool giveOurNumbers(bool takesChanges);
  std::vector<Person> moveWholeTeams(std::vector<bool>& moves,
                                     const IsOnlyTheirs& isOnlyTheirs) const;
  void listNumberChanges();

  MergeState& state_;
  const SameRoster& roster_;
  std::set<ContestantNumber> used_;
  std::set<ContestantNumber> dangling_;
};

}  // namespace scorvane
