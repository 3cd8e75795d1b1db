#include "model/merge_teams.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <utility>

#include "model/team_index.h"

namespace scorvane {

namespace {

template <typename Teams>
std::string numberedTeamName(const std::string& name, const Teams& taken) {
  std::string numbered;
  for (int count = 2; numbered.empty() || taken.contains(numbered); ++count) {
    numbered = name + kSecondTeam + std::to_string(count) + ')';
  }
  return numbered;
}

class TeamsMerge {
 public:
  TeamsMerge(MergeState& state, MergedNumbers& numbers, const std::vector<bool>& staysTeam)
      : state_(state),
        roster_(state.roster),
        contest_(state.merge.contest),
        numbers_(numbers),
        staysTeam_(staysTeam) {}

  void run() {
    std::map<std::string, std::size_t> named;
    std::vector<std::pair<std::size_t, std::string>> renamed;
    for (std::size_t team = 0; team < roster_.teams.size(); ++team) {
      if (!staysTeam_[team]) continue;
      const std::string name = mergedTeamName(team);
      const auto& base = roster_.teams[team][kBase];
      if (base && *base != name) {
        renamed.emplace_back(team, name);
      } else {
        named[name] = team;
      }
    }
    for (const auto& [team, name] : renamed) named[freeTeamName(named, team, name)] = team;
    for (const auto& [name, team] : named) {
      if (!keeperOf(roster_.teams[team])) addTeamSlots(name, team);
    }
    for (const auto& [name, team] : named) {
      if (keeperOf(roster_.teams[team])) addTeamSlots(name, team);
    }
    placeLeftOver();
    fillSlots();
    for (const auto& [name, team] : named) sortNewTeam(name, team);
  }

 private:
  using Person = std::size_t;

  [[nodiscard]] const Contest& in(Side side) const { return *state_.contests[side]; }

  std::string mergedTeamName(std::size_t team) {
    const auto& names = roster_.teams[team];
    const std::optional<std::string>& ours = names[1];
    const std::optional<std::string>& theirs = names[2];
    if (!ours || !theirs) return ours ? *ours : *theirs;
    return mergedValue(names[0] ? &*names[0] : nullptr, *ours, *theirs,
                       [&] { listTeam(*ours, "name", *ours, *theirs); });
  }

  // A team is not renamed to what another one is called by now, rather to what the other side calls
  // it.
  std::string freeTeamName(const std::map<std::string, std::size_t>& named, std::size_t team,
                           const std::string& wanted) {
    if (!named.contains(wanted)) return wanted;
    const auto& [base, ours, theirs] = roster_.teams[team];
    std::string name = *base;
    if (ours && theirs && *theirs != *base && !named.contains(*theirs)) name = *theirs;
    if (named.contains(name)) name = numberedTeamName(*base, named);
    listTeam(name, "name", ours.value_or(""), theirs.value_or(""));
    return name;
  }

  void listTeam(const std::string& name, std::string value, std::string ours, std::string theirs) {
    state_.differs(DifferenceKind::team, "team " + name, std::move(value), std::move(ours),
                   std::move(theirs));
  }

  void addTeamSlots(const std::string& name, std::size_t id) {
    const Three<std::string>& names = roster_.teams[id];
    const Side first = names[kOurs] ? kOurs : kTheirs;
    Team& team = contest_.teams[name];
    team.coach = state_.teamOn(first, id).coach;
    std::vector<TeamSlot>& slots = slotsOf_[name];
    slots = slotsOn(first, id);
    if (names[kOurs] && names[kTheirs]) mergeTeam(name, id, team, slots);
    while (slots.size() > teamSlots(contest_.settings)) {
      slots.erase(names[kBase] ? std::prev(slots.end()) : leastOf(slots));
    }
    // A removed team that stays leaves to other teams whom they have taken over.
    if (keeperOf(names)) {
      std::erase_if(slots, [this](const TeamSlot& slot) {
        if (!slot.person) return false;
        return isThere(slot) ? hasTeam_.contains(*slot.person)
                             : contest_.contestantNames.contains(slot.number);
      });
    }
    for (const TeamSlot& slot : slots) {
      if (slot.person) hasTeam_.insert(*slot.person);
    }
  }

  [[nodiscard]] std::vector<TeamSlot> slotsOn(Side side, std::size_t team) const {
    std::vector<TeamSlot> slots;
    for (std::size_t slot = 0; slot < state_.teamOn(side, team).members.size(); ++slot) {
      slots.push_back(slotOn(state_, side, team, slot));
    }
    return slots;
  }

  void mergeTeam(const std::string& name, std::size_t id, Team& team,
                 std::vector<TeamSlot>& slots) {
    const bool isKnown = roster_.teams[id][kBase].has_value();
    const std::string none;
    const std::string& before = isKnown ? state_.teamOn(kBase, id).coach : none;
    const std::string theirCoach = state_.teamOn(kTheirs, id).coach;
    team.coach = mergedValue(&before, std::string(team.coach), theirCoach,
                             [&] { listTeam(name, "coach", team.coach, theirCoach); });
    const std::vector<TeamSlot> theirSlots = slotsOn(kTheirs, id);
    if (!isKnown) return joinNewTeam(slots, theirSlots);
    const std::vector<TeamSlot> ourSlots = slots;
    for (std::size_t slot = 0; slot < theirSlots.size(); ++slot) {
      const TeamSlot& theirs = theirSlots[slot];
      if (slot >= slots.size()) {
        if (std::find(slots.begin(), slots.end(), theirs) == slots.end()) slots.push_back(theirs);
        continue;
      }
      const bool wasThere = slot < state_.teamOn(kBase, id).members.size();
      const TeamSlot base = wasThere ? slotOn(state_, kBase, id, slot) : TeamSlot{};
      slots[slot] = mergedValue(wasThere ? &base : nullptr, TeamSlot(slots[slot]), theirs, [&] {
        listTeam(name, "member " + std::to_string(slot + 1), slotText(slots[slot]),
                 slotText(theirs));
      });
      // The one number that somebody who goes was given.
      if (slots[slot] == theirs && slots[slot].number == base.number) slots[slot] = theirs;
    }
    putInOneSlot(slots, ourSlots, theirSlots);
  }

  // Somebody whom the two sides have in different slots is in the first of them; the other one is
  // for whom a side has there.
  static void putInOneSlot(std::vector<TeamSlot>& slots, const std::vector<TeamSlot>& ours,
                           const std::vector<TeamSlot>& theirs) {
    const auto isIn = [&slots](const TeamSlot& slot, std::size_t before) {
      const auto end = slots.begin() + static_cast<std::ptrdiff_t>(before);
      return std::find(slots.begin(), end, slot) != end;
    };
    for (std::size_t slot = 0; slot < slots.size(); ++slot) {
      if (!isIn(slots[slot], slot)) continue;
      for (const auto* side : {&ours, &theirs}) {
        const bool isFree = slot < side->size() && !isIn((*side)[slot], slots.size());
        if (isFree && isIn(slots[slot], slot)) slots[slot] = (*side)[slot];
      }
      if (isIn(slots[slot], slot)) slots.erase(slots.begin() + static_cast<std::ptrdiff_t>(slot--));
    }
  }

  // The slots of a team that both sides added, by number, without those that somebody else has now.
  void joinNewTeam(std::vector<TeamSlot>& slots, const std::vector<TeamSlot>& theirs) {
    if (slots == theirs) return;
    slots.insert(slots.end(), theirs.begin(), theirs.end());
    std::erase_if(slots, [this](const TeamSlot& slot) {
      return !isThere(slot) && contest_.contestantNames.contains(numberIn(slot));
    });
    std::sort(slots.begin(), slots.end(),
              [this](const TeamSlot& a, const TeamSlot& b) { return numberIn(a) < numberIn(b); });
    slots.erase(std::unique(slots.begin(), slots.end()), slots.end());
  }

  // The slot that a new team with too many goes without: the last number that nobody has, or else
  // that is merely reserved, or else the last.
  std::vector<TeamSlot>::iterator leastOf(std::vector<TeamSlot>& slots) const {
    const auto worth = [this](const TeamSlot& slot) {
      return isThere(slot) ? 1 + isAnybody(*slot.person) : 0;
    };
    return std::prev(
        std::min_element(slots.rbegin(), slots.rend(), [&](const TeamSlot& a, const TeamSlot& b) {
          return worth(a) < worth(b);
        }).base());
  }

  // Whom a team that both sides added has no room for forms a second one. Numbers that were only
  // reserved for a team go when it has others.
  void placeLeftOver() {
    std::set<ContestantNumber> taken;
    for (const auto& team : slotsOf_) {
      for (const TeamSlot& slot : team.second) taken.insert(numberIn(slot));
    }
    for (const Side side : {kOurs, kTheirs}) {
      for (const auto& [name, team] : roster_.teamOf[side]) {
        std::vector<TeamSlot> rest;
        for (const Person person : state_.membersOn(side, team)) {
          const bool isAdded = state_.staysPerson[person] && !roster_.people[person][kBase];
          if (!isAdded || taken.contains(state_.numberOf[person])) continue;
          if (!isAnybody(person)) {
            if (!isAloneOn(otherSide(side), person)) drop(side, person);
          } else if (!roster_.teams[team][kBase] && roster_.teams[team][otherSide(side)]) {
            rest.push_back({person, state_.numberOf[person]});
            taken.insert(state_.numberOf[person]);
          }
        }
        if (!rest.empty()) addSecondTeam(side, name, std::move(rest));
      }
    }
  }

  // Whether a side has somebody without a team.
  [[nodiscard]] bool isAloneOn(Side side, Person person) const {
    const auto& number = roster_.people[person][side];
    return number && !state_.hasTeam(side, *number);
  }

  [[nodiscard]] bool isAnybody(Person person) const {
    return !contestantName(contest_, state_.numberOf[person]).empty() ||
           state_.isChanged(kOurs, person) || state_.isChanged(kTheirs, person);
  }

  void drop(Side side, Person person) {
    const ContestantNumber now = state_.numberOf[person];
    const ContestantNumber before = *roster_.people[person][side];
    state_.staysPerson[person] = false;
    contest_.contestantNames.erase(now);
    std::erase_if(state_.merge.numbers, [&](const NumberChange& change) {
      return change.from == before && change.to == now;
    });
  }

  void addSecondTeam(Side side, const std::string& name, std::vector<TeamSlot> members) {
    const std::string second = numberedTeamName(name, contest_.teams);
    contest_.teams[second].coach = in(side).teams.at(name).coach;
    slotsOf_[second] = std::move(members);
    listTeam(second, "name", side == kOurs ? name : "", side == kTheirs ? name : "");
  }

  [[nodiscard]] ContestantNumber numberIn(const TeamSlot& slot) const {
    return isThere(slot) ? state_.numberOf[*slot.person] : slot.number;
  }

  [[nodiscard]] std::string slotText(const TeamSlot& slot) const {
    return std::to_string(numberIn(slot));
  }

  // Slots that neither side has, as its teams are smaller, take the next numbers; so do those whose
  // number nobody had on their side and somebody has now in another team. Whom the sides have put
  // into different teams is in the first of them, and listed with the other one.
  void fillSlots() {
    std::set<ContestantNumber> given;
    std::set<Person> placed;
    for (const auto& team : slotsOf_) {
      for (const TeamSlot& slot : team.second) {
        if (isThere(slot)) given.insert(numberIn(slot));
      }
    }
    for (auto& [name, team] : contest_.teams) {
      const std::vector<TeamSlot>& slots = slotsOf_[name];
      for (const TeamSlot& slot : slots) {
        const ContestantNumber number = numberIn(slot);
        const bool isInTeam = std::any_of(slots.begin(), slots.end(), [&](const TeamSlot& other) {
          return isThere(other) && numberIn(other) == number;
        });
        const bool isTwice = !isThere(slot) && isMember(team, number) && !hasTwice(name, number);
        const bool isTaken = !isThere(slot) && contest_.contestantNames.contains(number) &&
                             (isInTeam || (!given.insert(number).second && !isShared(number)));
        const bool isElsewhere =
            isThere(slot) && !placed.insert(*slot.person).second && !isInTwoTeams(*slot.person);
        team.members.push_back(isTwice || isTaken || isElsewhere ? reserved() : number);
        if (isElsewhere) {
          listTeam(name, "member " + std::to_string(team.members.size()), slotText(slot),
                   std::to_string(team.members.back()));
        }
      }
      while (team.members.size() < teamSlots(contest_.settings)) team.members.push_back(reserved());
    }
  }

  // A new team is as one side entered it, or else by number, as when it is merged again.
  void sortNewTeam(const std::string& name, std::size_t team) {
    const Three<std::string>& names = roster_.teams[team];
    std::vector<ContestantNumber>& members = contest_.teams.at(name).members;
    const auto isAsOn = [&](Side side) {
      const auto same = [this](const TeamSlot& slot, ContestantNumber number) {
        return numberIn(slot) == number;
      };
      const std::vector<TeamSlot> slots = slotsOn(side, team);
      return std::equal(slots.begin(), slots.end(), members.begin(), members.end(), same);
    };
    const bool isAsEntered =
        (!names[kOurs] || isAsOn(kOurs)) && (!names[kTheirs] || isAsOn(kTheirs));
    if (!names[kBase] && !isAsEntered) std::sort(members.begin(), members.end());
  }

  [[nodiscard]] bool isThere(const TeamSlot& slot) const {
    return slot.person && state_.staysPerson[*slot.person];
  }

  // Whether a side has a number twice in a team.
  [[nodiscard]] bool hasTwice(const std::string& name, ContestantNumber number) const {
    const auto isTwiceIn = [&](const Contest& contest) {
      const auto team = contest.teams.find(name);
      return team != contest.teams.end() &&
             std::count(team->second.members.begin(), team->second.members.end(), number) > 1;
    };
    return isTwiceIn(in(kOurs)) || isTwiceIn(in(kTheirs));
  }

  // Whether a side has somebody in more than one team.
  [[nodiscard]] bool isInTwoTeams(Person person) const {
    const auto& [base, ours, theirs] = roster_.people[person];
    return (ours && isShared(*ours)) || (theirs && isShared(*theirs));
  }

  // Whether a side has the number in more than one team.
  [[nodiscard]] bool isShared(ContestantNumber number) const {
    const auto isTwiceIn = [number](const Contest& contest) {
      return std::count_if(contest.teams.begin(), contest.teams.end(), [number](const auto& team) {
               return isMember(team.second, number);
             }) > 1;
    };
    return isTwiceIn(in(kOurs)) || isTwiceIn(in(kTheirs));
  }

  ContestantNumber reserved() {
    const ContestantNumber number = numbers_.nextFree();
    contest_.contestantNames[number] = "";
    return number;
  }

  MergeState& state_;
  const SameRoster& roster_;
  Contest& contest_;
  MergedNumbers& numbers_;
  const std::vector<bool>& staysTeam_;
  std::set<Person> hasTeam_;
  std::map<std::string, std::vector<TeamSlot>> slotsOf_;
};

}  // namespace

TeamSlot slotOn(const MergeState& state, Side side, std::size_t team, std::size_t slot) {
  const ContestantNumber number = state.teamOn(side, team).members[slot];
  const std::size_t* person = state.roster.personOf[side].find(number);
  const std::size_t* before = state.roster.personOf[kBase].find(number);
  if (before != nullptr && !state.roster.people[*before][side] && state.roster.teams[team][kBase]) {
    const std::vector<ContestantNumber>& members = state.teamOn(kBase, team).members;
    if (slot < members.size() && members[slot] == number) person = before;
  }
  return {person == nullptr ? std::nullopt : std::optional(*person), number};
}

void mergeTeams(MergeState& state, MergedNumbers& numbers, const std::vector<bool>& staysTeam) {
  TeamsMerge(state, numbers, staysTeam).run();
}

}  // namespace scorvane
