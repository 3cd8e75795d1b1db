#include <set>

#include "model/merge_numbers.h"
#include "model/merge_values.h"

namespace scorvane {

namespace {

// What a team's slot holds: a person, or a number that is no contestant's.
struct Slot {
  bool isPerson = false;
  std::int64_t value = 0;
  friend bool operator==(const Slot&, const Slot&) = default;
};

template <typename Teams>
std::string numberedTeamName(const std::string& name, const Teams& taken) {
  std::string numbered;
  for (int count = 2; numbered.empty() || taken.contains(numbered); ++count) {
    numbered = name + kSecondTeam + std::to_string(count) + ')';
  }
  return numbered;
}

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
    mergeTeams();
  }

 private:
  using Person = std::size_t;

  [[nodiscard]] const Contest& in(Side side) const { return *state_.contests[side]; }

  // Missing on one side, there on the other, and known to the ancestor.
  template <typename Key>
  static std::optional<Side> keeperOf(const Three<Key>& thing) {
    if (!thing[kBase] || thing[kOurs].has_value() == thing[kTheirs].has_value()) {
      return std::nullopt;
    }
    return thing[kOurs] ? kOurs : kTheirs;
  }

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
      const auto& teams = in(side).teams;
      const bool hasTeam = std::any_of(teams.begin(), teams.end(), [&](const auto& team) {
        const auto& members = team.second.members;
        return std::find(members.begin(), members.end(), *numbers[side]) != members.end();
      });
      if (!hasTeam) state_.staysPerson[person] = false;
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
      if (slotOn(side, team, slot) != slotOn(kBase, team, slot)) return true;
    }
    const std::vector<Person> members = state_.membersOn(side, team);
    return std::any_of(members.begin(), members.end(), [&](Person person) {
      return keeperOf(roster_.people[person]) == side && state_.staysPerson[person];
    });
  }

  // A number whose person was removed still means that person, unless it was put there anew.
  [[nodiscard]] Slot slotOn(Side side, std::size_t team, std::size_t slot) const {
    const ContestantNumber number = state_.teamOn(side, team).members[slot];
    const Person* person = roster_.personOf[side].find(number);
    const Person* before = roster_.personOf[kBase].find(number);
    if (before != nullptr && !roster_.people[*before][side]) {
      const bool wasThere = roster_.teams[team][kBase] &&
                            slot < state_.teamOn(kBase, team).members.size() &&
                            state_.teamOn(kBase, team).members[slot] == number;
      if (person == nullptr || wasThere) person = before;
    }
    return person == nullptr ? Slot{false, number} : Slot{true, static_cast<std::int64_t>(*person)};
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

  void mergeTeams() {
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
  }

  std::string mergedTeamName(std::size_t team) {
    const auto& names = roster_.teams[team];
    const std::optional<std::string>& ours = names[1];
    const std::optional<std::string>& theirs = names[2];
    if (!ours || !theirs) return ours ? *ours : *theirs;
    return mergedValue(names[0] ? &*names[0] : nullptr, *ours, *theirs,
                       [&] { listTeam(*ours, "name", *ours, *theirs); });
  }

  // A team is not renamed to what another one is called by now.
  std::string freeTeamName(const std::map<std::string, std::size_t>& named, std::size_t team,
                           const std::string& wanted) {
    if (!named.contains(wanted)) return wanted;
    const auto& [base, ours, theirs] = roster_.teams[team];
    std::string name = named.contains(*base) ? numberedTeamName(*base, named) : *base;
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
    std::vector<Slot>& slots = slotsOf_[name];
    for (std::size_t slot = 0; slot < state_.teamOn(first, id).members.size(); ++slot) {
      slots.push_back(slotOn(first, id, slot));
    }
    if (names[kOurs] && names[kTheirs]) mergeTeam(name, id, team, slots);
    slots.resize(std::min(slots.size(), teamSlots(contest_.settings)));
    // A removed team that stays leaves to other teams whom they have taken over.
    if (keeperOf(names)) {
      std::erase_if(slots, [this](const Slot& slot) {
        if (!slot.isPerson) return false;
        const bool isGone = !state_.staysPerson[static_cast<Person>(slot.value)];
        return isGone ? contest_.contestantNames.contains(numberIn(slot))
                      : hasTeam_.contains(slot.value);
      });
    }
    for (const Slot& slot : slots) {
      if (slot.isPerson) hasTeam_.insert(slot.value);
    }
  }

  void mergeTeam(const std::string& name, std::size_t id, Team& team, std::vector<Slot>& slots) {
    const bool isKnown = roster_.teams[id][kBase].has_value();
    const std::string none;
    const std::string& before = isKnown ? state_.teamOn(kBase, id).coach : none;
    const std::string theirCoach = state_.teamOn(kTheirs, id).coach;
    team.coach = mergedValue(&before, std::string(team.coach), theirCoach,
                             [&] { listTeam(name, "coach", team.coach, theirCoach); });
    // Numbers that nobody has any more leave room for the other side's people.
    const auto isPerson = [](const Slot& slot) { return slot.isPerson; };
    if (!isKnown && std::none_of(slots.begin(), slots.end(), isPerson)) slots.clear();
    for (std::size_t slot = 0; slot < state_.teamOn(kTheirs, id).members.size(); ++slot) {
      const Slot theirs = slotOn(kTheirs, id, slot);
      if (slot >= slots.size()) {
        if (std::find(slots.begin(), slots.end(), theirs) == slots.end()) slots.push_back(theirs);
        continue;
      }
      if (!isKnown) continue;
      const bool wasThere = slot < state_.teamOn(kBase, id).members.size();
      const Slot base = wasThere ? slotOn(kBase, id, slot) : Slot{};
      slots[slot] = mergedValue(wasThere ? &base : nullptr, Slot(slots[slot]), theirs, [&] {
        listTeam(name, "member " + std::to_string(slot + 1), slotText(slots[slot]),
                 slotText(theirs));
      });
    }
  }

  // Whom a team that both sides added has no room for forms a second one. Numbers that were only
  // reserved for a team go when it has others.
  void placeLeftOver() {
    std::set<ContestantNumber> taken;
    for (const auto& team : slotsOf_) {
      for (const Slot& slot : team.second) taken.insert(numberIn(slot));
    }
    for (const Side side : {kOurs, kTheirs}) {
      for (const auto& [name, team] : roster_.teamOf[side]) {
        std::vector<Slot> rest;
        for (const Person person : state_.membersOn(side, team)) {
          const bool isAdded = state_.staysPerson[person] && !roster_.people[person][kBase];
          if (!isAdded || taken.contains(state_.numberOf[person])) continue;
          if (!isAnybody(person)) {
            drop(side, person);
          } else if (!roster_.teams[team][kBase] && roster_.teams[team][otherSide(side)]) {
            rest.push_back({true, static_cast<std::int64_t>(person)});
            taken.insert(state_.numberOf[person]);
          }
        }
        if (!rest.empty()) addSecondTeam(side, name, std::move(rest));
      }
    }
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

  void addSecondTeam(Side side, const std::string& name, std::vector<Slot> members) {
    const std::string second = numberedTeamName(name, contest_.teams);
    contest_.teams[second].coach = in(side).teams.at(name).coach;
    slotsOf_[second] = std::move(members);
    listTeam(second, "name", side == kOurs ? name : "", side == kTheirs ? name : "");
  }

  [[nodiscard]] ContestantNumber numberIn(const Slot& slot) const {
    if (!slot.isPerson) return static_cast<ContestantNumber>(slot.value);
    const auto person = static_cast<Person>(slot.value);
    if (state_.staysPerson[person]) return state_.numberOf[person];
    const auto& [base, ours, theirs] = roster_.people[person];
    return base ? *base : ours ? *ours : *theirs;
  }

  [[nodiscard]] std::string slotText(const Slot& slot) const {
    return std::to_string(numberIn(slot));
  }

  // Slots that neither side has, as its teams are smaller, take the next numbers; so do those whose
  // number nobody had on their side and somebody has now in another team.
  void fillSlots() {
    std::set<ContestantNumber> given;
    for (const auto& team : slotsOf_) {
      for (const Slot& slot : team.second) {
        if (isThere(slot)) given.insert(numberIn(slot));
      }
    }
    for (auto& [name, team] : contest_.teams) {
      for (const Slot& slot : slotsOf_[name]) {
        const ContestantNumber number = numberIn(slot);
        const bool isTaken = !isThere(slot) && contest_.contestantNames.contains(number) &&
                             !given.insert(number).second && !isShared(number);
        team.members.push_back(isTaken ? reserved() : number);
      }
      while (team.members.size() < teamSlots(contest_.settings)) team.members.push_back(reserved());
    }
  }

  [[nodiscard]] bool isThere(const Slot& slot) const {
    return slot.isPerson && state_.staysPerson[static_cast<Person>(slot.value)];
  }

  // Whether a side has the number in more than one team.
  [[nodiscard]] bool isShared(ContestantNumber number) const {
    const auto isTwiceIn = [number](const Contest& contest) {
      const auto has = [number](const auto& team) {
        const auto& members = team.second.members;
        return std::find(members.begin(), members.end(), number) != members.end();
      };
      return std::count_if(contest.teams.begin(), contest.teams.end(), has) > 1;
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
  MergedNumbers numbers_;
  std::vector<bool> staysTeam_;
  std::set<Person> isListed_;
  std::set<std::int64_t> hasTeam_;
  std::map<std::string, std::vector<Slot>> slotsOf_;
};

}  // namespace

void mergeRoster(MergeState& state) {
  RosterMerge(state).run();
}

}  // namespace scorvane
