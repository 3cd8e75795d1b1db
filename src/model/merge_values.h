// What the parts of a merge share: the three contests, what is the same in them, and the result.
#pragma once

#include <algorithm>
#include <string>
#include <utility>

#include "model/contest_merge.h"
#include "model/merge_identity.h"

namespace scorvane {

constexpr Side otherSide(Side side) {
  return side == kOurs ? kTheirs : kOurs;
}

/// The side that still has what the ancestor has and the other side removed.
template <typename Key>
std::optional<Side> keeperOf(const Three<Key>& thing) {
  if (!thing[kBase] || thing[kOurs].has_value() == thing[kTheirs].has_value()) {
    return std::nullopt;
  }
  return thing[kOurs] ? kOurs : kTheirs;
}

/// The value that one side changed; ours, after calling report(), when both did. Without a base
/// both sides are new.
template <typename Value, typename Report>
Value mergedValue(const Value* base, const Value& ours, const Value& theirs, Report report) {
  if (ours == theirs || (base != nullptr && theirs == *base)) return ours;
  if (base != nullptr && ours == *base) return theirs;
  report();
  return ours;
}

struct MergeState {
  explicit MergeState(const ThreeContests& three)
      : contests(three),
        classes({&three[kBase]->classes.className, &three[kOurs]->classes.className,
                 &three[kTheirs]->classes.className}),
        roster(sameRoster(three)),
        staysPerson(roster.people.size(), true) {}

  ThreeContests contests;
  MergedList classes;
  SameRoster roster;
  std::vector<bool> staysPerson;
  std::vector<ContestantNumber> numberOf;  ///< of each person who stays, in the merged contest
  Merge merge;

  void differs(DifferenceKind kind, std::string subject, std::string value, std::string ours,
               std::string theirs) {
    merge.values.push_back(
        {kind, std::move(subject), std::move(value), {std::move(ours), std::move(theirs)}});
  }

  /// A person's scores on a side; null where the person is missing there.
  [[nodiscard]] const ClassScores* scoresOf(Side side, std::size_t person) const;
  /// A blank record where the class or the person is missing.
  [[nodiscard]] const ScoreRecord& record(Side side, const ClassScores* scores,
                                          std::size_t judgedClass) const;
  /// Whether a side typed or changed a score of that class.
  [[nodiscard]] bool isScored(Side side, std::size_t person, std::size_t judgedClass) const;
  /// Whether a side named the person otherwise, or scored one of the side's classes.
  [[nodiscard]] bool isChanged(Side side, std::size_t person) const;
  [[nodiscard]] const Team& teamOn(Side side, std::size_t team) const;
  /// The people in a team's slots.
  [[nodiscard]] std::vector<std::size_t> membersOn(Side side, std::size_t team) const;
  [[nodiscard]] const std::string& nameOn(Side side, std::size_t person) const;
  /// Whether a number is in any team of a side.
  [[nodiscard]] bool hasTeam(Side side, ContestantNumber number) const;
};

/// Decides who stays and under which number, and merges names and teams.
void mergeRoster(MergeState& state);

/// Merges the number of reasons takers and everybody's places; people have their numbers.
void mergeReasonsOrder(MergeState& state);

}  // namespace scorvane
