#include "entry/group_members.h"

#include <limits>

namespace scorvane {

namespace {

using Names = FlatMap<ContestantNumber, std::string>;

bool isMember(const Contest& contest, const Names::Entry& contestant, char group) {
  if (contestant.second.empty()) return false;
  const char* letter = contest.contestantGroup.find(contestant.first);
  return letter != nullptr && *letter == group;
}

std::optional<ContestantNumber> memberFrom(const Contest& contest, char group,
                                           Names::const_iterator place) {
  for (; place != contest.contestantNames.end(); ++place) {
    if (isMember(contest, *place, group)) return place->first;
  }
  return std::nullopt;
}

}  // namespace

std::optional<ContestantNumber> firstMember(const Contest& contest, char group) {
  return memberFrom(contest, group, contest.contestantNames.begin());
}

std::optional<ContestantNumber> nextMember(const Contest& contest, char group,
                                           ContestantNumber number) {
  if (number == std::numeric_limits<ContestantNumber>::max()) return std::nullopt;
  return memberFrom(contest, group, contest.contestantNames.lowerBound(number + 1));
}

EnteredCount countEntered(const Contest& contest, char group, std::int32_t classIndex,
                          ScoreField score) {
  EnteredCount count;
  for (const Names::Entry& contestant : contest.contestantNames) {
    if (!isMember(contest, contestant, group)) continue;
    // A letter that scored nothing, such as "Z", deliberately counts as not entered.
    count.add(scoreRecord(contest, contestant.first, classIndex).*score);
  }
  return count;
}

}  // namespace scorvane
