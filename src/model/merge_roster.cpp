#include <algorithm>
#include <optional>
#include <set>

#include "model/merge_numbers.h"
#include "model/merge_teams.h"
#include "model/merge_values.h"

namespace scorvane {

namespace {

class RosterMerge {
 public:
  explicit RosterMerge(MergeState& state)
      : state_(state), roster_(state.roster), contest_(state.merge.contest), numbers_(state) {}

  void run() {
    decideWhoStays();
    decideTeams();
    dropNobodies();
    numbers_.give();
    mergeNames();
    mergeTeams(state_, numbers_, staysTeam_);
  }

 private:
  using Person = std::size_t;

  void decideWhoStays() {
    for (Person person = 0; person < roster_.people.size(); ++person) {
      const Three<ContestantNumber>& numbers = roster_.people[person];
      const auto keeper = keeperOf(numbers);
      if (keeper) state_.staysPerson[person] = state_.isChanged(*keeper, person);
      if (!numbers[kOurs] && !numbers[kTheirs]) state_.staysPerson[person] = false;
    }
  }

  // A team of which somebody stays does so as a whole.
  void decideTeams() {
    staysTeam_.assign(roster_.teams.size(), true);
    for (std::size_t team = 0; team < roster_.teams.size(); ++team) {
      const Three<std::string>& names = roster_.teams[team];
      if (!names[kOurs] && !names[kTheirs]) staysTeam_[team] = false;
      const auto keeper = keeperOf(names);
      if (!keeper) continue;
      staysTeam_[team] = isTeamChanged(*keeper, team);
      if (!staysTeam_[team]) continue;
      addLost(DifferenceKind::team, "team " + *names[*keeper], *keeper);
      for (const Person person : state_.membersOn(*keeper, team)) {
        isListed_.insert(person);
        state_.staysPerson[person] = true;
      }
    }
    for (Person person = 0; person < roster_.people.size(); ++person) {
      const auto keeper = keeperOf(roster_.people[person]);
      if (!keeper || !state_.staysPerson[person] || isListed_.contains(person)) continue;
      addLost(DifferenceKind::contestant, subjectOf(*keeper, person), *keeper);
    }
  }

  // New numbers that are merely reserved, by no team and without scores, give way to people.
  void dropNobodies() {
    for (Person person = 0; person < roster_.people.size(); ++person) {
      const Three<ContestantNumber>& numbers = roster_.people[person];
      if (numbers[kBase] || (numbers[kOurs] && numbers[kTheirs])) continue;
      const Side side = numbers[kOurs] ? kOurs : kTheirs;
      const Person* other = roster_.personOf[otherSide(side)].find(*numbers[side]);
      if (other == nullptr || !state_.staysPerson[*other]) continue;
      if (numberLeftBy(roster_.people[*other]) != *numbers[side]) continue;
      if (!state_.nameOn(side, person).empty() || state_.isChanged(side, person)) continue;
      if (!state_.hasTeam(side, *numbers[side])) state_.staysPerson[person] = false;
    }
  }

  // The number of somebody who keeps the one of the side that changed it.
  static ContestantNumber numberLeftBy(const Three<ContestantNumber>& numbers) {
    const auto& [base, ours, theirs] = numbers;
    if (!ours) return *theirs;
    return theirs && base == ours ? *theirs : *ours;
  }

  void addLost(DifferenceKind kind, std::string subject, Side keeper) {
    state_.merge.lostRemovals.push_back({kind, std::move(subject), keeper == kTheirs});
  }

  [[nodiscard]] std::string subjectOf(Side side, Person person) const {
    const std::string& name = state_.nameOn(side, person);
    return std::to_string(*roster_.people[person][side]) + (name.empty() ? "" : ' ' + name);
  }

  [[nodiscard]] bool isTeamChanged(Side side, std::size_t team) const {
    const Team& now = state_.teamOn(side, team);
    const Team& before = state_.teamOn(kBase, team);
    if (*roster_.teams[team][side] != *roster_.teams[team][kBase] || now.coach != before.coach ||
        now.members.size() != before.members.size()) {
      return true;
    }
    for (std::size_t slot = 0; slot < now.members.size(); ++slot) {
      if (slotOn(state_, side, team, slot) != slotOn(state_, kBase, team, slot)) return true;
    }
    const std::vector<Person> members = state_.membersOn(side, team);
    return std::any_of(members.begin(), members.end(), [&](Person person) {
      return keeperOf(roster_.people[person]) == side && state_.staysPerson[person];
    });
  }

  void mergeNames() {
    std::vector<decltype(contest_.contestantNames)::Entry> names;
    for (Person person = 0; person < roster_.people.size(); ++person) {
      if (!state_.staysPerson[person]) continue;
      names.emplace_back(state_.numberOf[person], mergedName(person));
    }
    contest_.contestantNames = decltype(contest_.contestantNames)::fromEntries(std::move(names));
  }

  std::string mergedName(Person person) {
    const Three<ContestantNumber>& numbers = roster_.people[person];
    if (!numbers[kTheirs]) return state_.nameOn(kOurs, person);
    if (!numbers[kOurs]) return state_.nameOn(kTheirs, person);
    const std::string& base = state_.nameOn(kBase, person);
    const std::string& ours = state_.nameOn(kOurs, person);
    const std::string& theirs = state_.nameOn(kTheirs, person);
    if (!base.empty() && ours.empty() != theirs.empty()) {
      const Side keeper = ours.empty() ? kTheirs : kOurs;
      if (!state_.isChanged(keeper, person)) return {};
      addLost(DifferenceKind::contestant, subjectOf(keeper, person), keeper);
      return state_.nameOn(keeper, person);
    }
    return mergedValue(&base, ours, theirs, [&] {
      state_.differs(DifferenceKind::contestant,
                     std::to_string(state_.numberOf[person]) + ' ' + ours, "name", ours, theirs);
    });
  }

  MergeState& state_;
  const SameRoster& roster_;
  Contest& contest_;
  MergedNumbers numbers_;
  std::vector<bool> staysTeam_;
  std::set<Person> isListed_;
};

}  // namespace

void mergeRoster(MergeState& state) {
  RosterMerge(state).run();
}

}  // namespace scorvane
