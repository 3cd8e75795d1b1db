// Which team a contestant belongs to, looked up fast.
#pragma once

#include <string>
#include <vector>

#include "model/contest.h"

namespace scorvane {

/// Whether a number is in any of the team's slots, alternates included.
[[nodiscard]] bool isMember(const Team& team, ContestantNumber number);

/// The same as TeamIndex::teamOf() for a single contestant.
[[nodiscard]] const std::string& teamOf(const Contest& contest, ContestantNumber number);

/// Made once for a report; the contest must outlive it and stay as it is.
class TeamIndex {
 public:
  explicit TeamIndex(const Contest& contest);

  /// Name of the team that has the number in any member slot, alternates included; the first in
  /// name order when there are several, "" when there is none or the contestant does not exist.
  [[nodiscard]] const std::string& teamOf(ContestantNumber number) const;

  /// Whether some team has the number; false when the contestant does not exist.
  [[nodiscard]] bool hasTeam(ContestantNumber number) const { return find(number) != nullptr; }

 private:
  [[nodiscard]] const std::string* find(ContestantNumber number) const;

  const Contest& contest_;
  std::vector<const std::string*> teams_;  ///< by position in contestantNames, null without a team
};

}  // namespace scorvane
