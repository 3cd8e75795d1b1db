#include "model/merge_numbers.h"

#include <algorithm>
#include <limits>
#include <tuple>

#include "model/team_index.h"

namespace scorvane {

void MergedNumbers::give() {
  state_.numberOf.assign(roster_.people.size(), 0);
  if (!giveOurNumbers(true)) giveOurNumbers(false);
  const auto isOnlyTheirs = [this](Person person) {
    return state_.staysPerson[person] && !roster_.people[person][kOurs];
  };
  std::vector<bool> moves(roster_.people.size());
  bool clashes = false;
  for (Person person = 0; person < roster_.people.size(); ++person) {
    if (!isOnlyTheirs(person)) continue;
    state_.numberOf[person] = *roster_.people[person][kTheirs];
    moves[person] = used_.contains(state_.numberOf[person]);
    clashes = clashes || moves[person];
  }
  std::vector<Person> order;
  if (clashes) order = moveWholeTeams(moves, isOnlyTheirs);
  for (Person person = 0; person < roster_.people.size(); ++person) {
    if (isOnlyTheirs(person) && !moves[person]) used_.insert(state_.numberOf[person]);
  }
  for (const Person person : order) state_.numberOf[person] = nextFree();
  listNumberChanges();
}

// Those on our side keep their numbers, or take the ones that they were given on the other side
// if that is possible for all of them. Returns whether no number was taken twice.
bool MergedNumbers::giveOurNumbers(bool takesChanges) {
  used_.clear();
  bool isFine = true;
  for (Person person = 0; person < roster_.people.size(); ++person) {
    const auto& [base, ours, theirs] = roster_.people[person];
    if (!state_.staysPerson[person] || !ours) continue;
    const bool takes = takesChanges && base && ours == base && theirs;
    state_.numberOf[person] = takes ? *theirs : *ours;
    isFine = used_.insert(state_.numberOf[person]).second && isFine;
  }
  return isFine;
}

// Everybody who needs another number, team by team in the order of their slots.
std::vector<std::size_t> MergedNumbers::moveWholeTeams(std::vector<bool>& moves,
                                                       const IsOnlyTheirs& isOnlyTheirs) const {
  std::vector<Person> order;
  std::vector<bool> isOrdered(moves.size());
  const auto add = [&](Person person) {
    if (!isOrdered[person]) order.push_back(person);
    isOrdered[person] = true;
  };
  for (const auto& [name, team] : roster_.teamOf[kTheirs]) {
    const std::vector<Person> members = state_.membersOn(kTheirs, team);
    const auto isMoving = [&](Person person) { return moves[person]; };
    if (std::none_of(members.begin(), members.end(), isMoving)) continue;
    for (const Person person : members) {
      if (isOnlyTheirs(person)) add(person);
    }
  }
  for (Person person = 0; person < moves.size(); ++person) {
    if (moves[person]) add(person);
  }
  moves = isOrdered;
  return order;
}

ContestantNumber MergedNumbers::nextFree() {
  if (dangling_.empty()) {
    dangling_.insert(0);
    for (const Side side : {kOurs, kTheirs}) {
      for (const auto& entry : (*state_.contests[side]).teams) {
        dangling_.insert(entry.second.members.begin(), entry.second.members.end());
      }
    }
  }
  std::int64_t next = used_.empty() ? 0 : std::max(*used_.rbegin(), 0);
  if (used_.empty()) next = std::int64_t{state_.merge.contest.settings.startNum} - 1;
  do {
    next = next == std::numeric_limits<ContestantNumber>::max()
               ? std::numeric_limits<ContestantNumber>::min()
               : next + 1;
  } while (used_.contains(static_cast<ContestantNumber>(next)) ||
           dangling_.contains(static_cast<ContestantNumber>(next)));
  used_.insert(static_cast<ContestantNumber>(next));
  return static_cast<ContestantNumber>(next);
}

void MergedNumbers::listNumberChanges() {
  for (Person person = 0; person < roster_.people.size(); ++person) {
    if (!state_.staysPerson[person]) continue;
    const ContestantNumber now = state_.numberOf[person];
    const auto& [base, ours, theirs] = roster_.people[person];
    const bool isKnownThere = base && base == theirs && ours;
    const auto add = [&](Side side) {
      const ContestantNumber number = *roster_.people[person][side];
      state_.merge.numbers.push_back({number, now, teamOf(*state_.contests[side], number)});
    };
    if (ours && *ours != now) add(kOurs);
    if (theirs && *theirs != now && !isKnownThere) add(kTheirs);
  }
  std::sort(state_.merge.numbers.begin(), state_.merge.numbers.end(),
            [](const NumberChange& a, const NumberChange& b) {
              return std::tie(a.from, a.to) < std::tie(b.from, b.to);
            });
}

}  // namespace scorvane
