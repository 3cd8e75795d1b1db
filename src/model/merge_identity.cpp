#include "model/merge_identity.h"

#include <algorithm>
#include <limits>
#include <string_view>
#include <utility>

namespace scorvane {

namespace {

constexpr std::size_t kUnknown = std::numeric_limits<std::size_t>::max();
constexpr Side kSides[] = {kBase, kOurs, kTheirs};

// A contestant in a team's slot.
struct Member {
  std::size_t slot = 0;
  ContestantNumber number = 0;
  std::string name;
  std::size_t position = 0;  // in contestantNames
};

bool isSecondTeam(const std::string& name, const std::string& of) {
  return name.starts_with(of + kSecondTeam);
}

class RosterMatcher {
 public:
  explicit RosterMatcher(const ThreeContests& contests) : contests_(contests) {
    for (const Side side : kSides) {
      const Contest& contest = *contests_[side];
      personAt_[side].assign(contest.contestantNames.size(), kUnknown);
      teams_[side].resize(contest.contestantNames.size());
      for (const auto& entry : contest.teams) {
        for (const Member& member : membersOf(side, entry.first)) {
          teams_[side][member.position].push_back(&entry.first);
        }
      }
    }
  }

  SameRoster run() {
    addUnmatched(kBase);
    match(kBase, kOurs);
    match(kBase, kTheirs);
    matchRenumbered(kOurs, kTheirs);
    matchRenumbered(kTheirs, kOurs);
    addUnmatched(kOurs);
    match(kOurs, kTheirs);
    addUnmatched(kTheirs);
    for (const Side side : kSides) {
      std::vector<FlatMap<ContestantNumber, std::size_t>::Entry> entries;
      entries.reserve(personAt_[side].size());
      for (const auto& entry : contests_[side]->contestantNames) {
        entries.emplace_back(entry.first, personAt_[side][entries.size()]);
      }
      same_.personOf[side] =
          FlatMap<ContestantNumber, std::size_t>::fromEntries(std::move(entries));
    }
    return std::move(same_);
  }

 private:
  std::vector<Member> membersOf(Side side, const std::string& team) const {
    std::vector<Member> members;
    const Contest& contest = *contests_[side];
    std::size_t slot = 0;
    for (const ContestantNumber number : contest.teams.at(team).members) {
      const std::size_t position = contest.contestantNames.positionOf(number);
      if (position < contest.contestantNames.size()) {
        members.push_back({slot, number, entryAt(side, position).second, position});
      }
      ++slot;
    }
    return members;
  }

  void addUnmatched(Side side) {
    const Contest& contest = *contests_[side];
    std::size_t position = 0;
    for (const auto& entry : contest.contestantNames) {
      std::size_t& person = personAt_[side][position++];
      if (person != kUnknown) continue;
      person = same_.people.size();
      same_.people.emplace_back()[side] = entry.first;
    }
    for (const auto& [name, team] : contest.teams) {
      if (!same_.teamOf[side].emplace(name, same_.teams.size()).second) continue;
      same_.teams.emplace_back()[side] = name;
    }
  }

  // What is `from`'s own (the ancestor's, or what ours has and the ancestor lacks) can be the same
  // as what is still unmatched on the other side.
  void match(Side from, Side to) {
    if (from == kBase) matchUnchanged(to);
    matchTeams(from, to);
    for (const auto& [name, id] : same_.teamOf[to]) {
      const auto& other = same_.teams[id][from];
      if (other) matchMembers(from, *other, to, name);
    }
    std::size_t position = 0;
    for (const auto& [number, name] : contests_[to]->contestantNames) {
      const std::size_t here = position++;
      const std::size_t there = contests_[from]->contestantNames.positionOf(number);
      if (!isFree(to, here) || !isFree(from, there, to)) continue;
      const std::string& before = contestantName(*contests_[from], number);
      const bool isSameName = name == before;
      const bool isAlone = teams_[to][here].empty(), wasAlone = teams_[from][there].empty();
      const bool isKnown = isAlone || ((isSameName || before.empty()) && wasAlone);
      const bool isNobody = isSameName && name.empty() && (isAlone || wasAlone);
      if (from == kBase ? isKnown : isNobody || (isSameName && isAlone && wasAlone)) {
        link(from, there, to, here, number);
      }
    }
    if (from != kBase) matchStrays(from, to);
  }

  // Whoever has the name and number of the ancestor, also when a team has somebody else of the
  // name.
  void matchUnchanged(Side to) {
    std::size_t position = 0;
    for (const auto& [number, name] : contests_[to]->contestantNames) {
      const std::size_t here = position++;
      if (name.empty() || name != contestantName(*contests_[kBase], number)) continue;
      link(kBase, contests_[kBase]->contestantNames.positionOf(number), to, here, number);
    }
  }

  // Whoever has another name and another number than in the ancestor can still be known by what the
  // other side calls the member.
  void matchRenumbered(Side known, Side side) {
    for (const auto& [name, id] : same_.teamOf[side]) {
      if (!same_.teams[id][known]) continue;
      const std::vector<Member> there = membersOf(known, *same_.teams[id][known]);
      for (const Member& member : membersOf(side, name)) {
        for (const Member& other : there) {
          if (!isFree(side, member.position)) break;
          const std::size_t person = personAt_[known][other.position];
          if (person == kUnknown || same_.people[person][side] || member.name.empty()) continue;
          if (member.name == other.name)
            link(known, other.position, side, member.position, member.number);
        }
      }
    }
  }

  // Somebody whom a full team had no room for is in a second one since, or had no team; such people
  // are known by name.
  void matchStrays(Side from, Side to) {
    std::map<std::string_view, std::vector<std::size_t>> added;
    for (std::size_t there = personAt_[from].size(); there-- > 0;) {
      if (isFree(from, there, to)) added[entryAt(from, there).second].push_back(there);
    }
    for (std::size_t here = 0; here < personAt_[to].size(); ++here) {
      const auto& [number, name] = entryAt(to, here);
      if (!isFree(to, here) || name.empty()) continue;
      auto& same = added[name];
      const auto found = std::find_if(same.rbegin(), same.rend(), [&](std::size_t there) {
        const auto& teams = teams_[from][there];
        const auto& others = teams_[to][here];
        return teams.empty() || others.empty() || isSecondTeam(*teams[0], *others[0]) ||
               isSecondTeam(*others[0], *teams[0]);
      });
      if (found == same.rend()) continue;
      link(from, *found, to, here, number);
      same.erase(std::next(found).base());
    }
  }

  const decltype(Contest::contestantNames)::Entry& entryAt(Side side, std::size_t position) const {
    return contests_[side]->contestantNames.begin()[static_cast<std::ptrdiff_t>(position)];
  }

  bool isFree(Side to, std::size_t position) const { return personAt_[to][position] == kUnknown; }

  bool isFree(Side from, std::size_t position, Side to) const {
    if (position >= personAt_[from].size()) return false;
    const Three<ContestantNumber>& person = same_.people[personAt_[from][position]];
    return !person[to] && (from == kBase || !person[kBase]);
  }

  void link(Side from, std::size_t there, Side to, std::size_t here, ContestantNumber number) {
    personAt_[to][here] = personAt_[from][there];
    same_.people[personAt_[from][there]][to] = number;
  }

  void linkTeams(Side from, const std::string& there, Side to, const std::string& here) {
    const std::size_t id = same_.teamOf[from].at(there);
    same_.teamOf[to].emplace(here, id);
    same_.teams[id][to] = here;
  }

  bool isFreeTeam(Side from, const std::string& name, Side to) const {
    const auto found = same_.teamOf[from].find(name);
    if (found == same_.teamOf[from].end()) return false;
    const Three<std::string>& team = same_.teams[found->second];
    return !team[to] && (from == kBase || !team[kBase]);
  }

  // Of one name with a member in common, then with the same numbers; then with a member of one
  // number and name, then with the same people, then of one coach and the same numbers, then of one
  // name.
  void matchTeams(Side from, Side to) {
    const auto byName = [](Side, const std::string& name) { return name; };
    matchTeamsBy(from, to, byName, true);
    if (from == kBase) {
      const auto byNumbers = [this](Side side, const std::string& name) {
        return name + numbersOf(side, name);
      };
      matchTeamsBy(from, to, byNumbers, false);
      matchRenamedTeams(from, to);
    }
    matchTeamsBy(from, to, byName, false);
  }

  void matchRenamedTeams(Side from, Side to) {
    for (const auto& entry : contests_[to]->teams) {
      if (!same_.teamOf[to].contains(entry.first)) matchRenamed(from, to, entry.first);
    }
    matchTeamsBy(
        from, to,
        [this](Side side, const std::string& name) {
          std::string names, none;
          for (const Member& member : membersOf(side, name)) {
            names += member.name + '\n';
            none += '\n';
          }
          return names == none ? "" : names;
        },
        false);
    matchTeamsBy(
        from, to,
        [this](Side side, const std::string& name) {
          const std::string& coach = contests_[side]->teams.at(name).coach;
          return coach.empty() ? coach : coach + numbersOf(side, name);
        },
        false);
  }

  std::string numbersOf(Side side, const std::string& team) const {
    std::string text;
    for (const ContestantNumber number : contests_[side]->teams.at(team).members) {
      text += '\n' + std::to_string(number);
    }
    return text;
  }

  // Of the same key, which is not empty.
  template <typename Key>
  void matchTeamsBy(Side from, Side to, Key keyOf, bool needsCommonMember) {
    std::map<std::string, std::string> known;
    for (const auto& entry : contests_[from]->teams) {
      if (isFreeTeam(from, entry.first, to)) known[keyOf(from, entry.first)] = entry.first;
    }
    for (const auto& entry : contests_[to]->teams) {
      if (same_.teamOf[to].contains(entry.first)) continue;
      const std::string key = keyOf(to, entry.first);
      const auto found = known.find(key);
      if (key.empty() || found == known.end() || !isFreeTeam(from, found->second, to)) continue;
      if (needsCommonMember && !sharesName(from, found->second, to, entry.first)) continue;
      linkTeams(from, found->second, to, entry.first);
    }
  }

  bool sharesName(Side from, const std::string& other, Side to, const std::string& team) const {
    const std::vector<Member> there = membersOf(from, other);
    const std::vector<Member> here = membersOf(to, team);
    return std::any_of(here.begin(), here.end(), [&](const Member& member) {
      return std::any_of(there.begin(), there.end(), [&](const Member& known) {
        return !member.name.empty() && known.name == member.name;
      });
    });
  }

  void matchRenamed(Side from, Side to, const std::string& name) {
    for (const Member& member : membersOf(to, name)) {
      const std::size_t there = contests_[from]->contestantNames.positionOf(member.number);
      if (member.name.empty() || contestantName(*contests_[from], member.number) != member.name) {
        continue;
      }
      for (const std::string* team : teams_[from][there]) {
        if (!isFreeTeam(from, *team, to)) continue;
        linkTeams(from, *team, to, name);
        return;
      }
    }
  }

  template <typename Same>
  std::size_t linkMembers(Side from, const std::vector<Member>& there, Side to,
                          const std::vector<Member>& here, Same isSame) {
    std::size_t linked = 0;
    for (const Member& member : here) {
      for (const Member& other : there) {
        if (!isFree(to, member.position)) break;
        if (!isFree(from, other.position, to) || !isSame(other, member)) continue;
        link(from, other.position, to, member.position, member.number);
        ++linked;
      }
    }
    return linked;
  }

  void matchMembers(Side from, const std::string& team, Side to, const std::string& name) {
    const std::vector<Member> there = membersOf(from, team);
    const std::vector<Member> here = membersOf(to, name);
    const auto matchBy = [&](auto isSame) { return linkMembers(from, there, to, here, isSame); };
    const bool isNew = from != kBase;
    matchBy([](const Member& a, const Member& b) {
      return a.number == b.number && a.name == b.name && !a.name.empty();
    });
    const std::size_t moved = matchBy(
        [](const Member& a, const Member& b) { return a.name == b.name && !a.name.empty(); });
    const auto isOnePlace = [&](const Member& a, const Member& b) {
      const auto& teams = teams_[from][a.position];
      const auto& others = teams_[to][b.position];
      const auto isSame = [](const std::string* x, const std::string* y) { return *x == *y; };
      return (teams.size() == 1 && others.size() == 1) ||
             std::equal(teams.begin(), teams.end(), others.begin(), others.end(), isSame);
    };
    // Two people of a new team are not one merely renamed.
    const auto isPlausible = [&](const Member& a, const Member& b) {
      return !isNew || a.name.empty() || b.name.empty();
    };
    matchBy([&](const Member& a, const Member& b) {
      return a.number == b.number && isPlausible(a, b) && (a.name == b.name || isOnePlace(a, b));
    });
    if (moved > 0) {
      matchBy([&](const Member& a, const Member& b) {
        return a.slot == b.slot && a.name.empty() && b.name.empty() && isOnePlace(a, b);
      });
    }
    if (!same_.teams[same_.teamOf[from].at(team)][kBase]) {
      matchBy([](const Member& a, const Member& b) { return a.name.empty() != b.name.empty(); });
      matchBy([](const Member& a, const Member& b) { return a.name.empty() && b.name.empty(); });
    }
  }

  ThreeContests contests_;
  SameRoster same_;
  std::array<std::vector<std::size_t>, 3> personAt_;  // by position in contestantNames
  std::array<std::vector<std::vector<const std::string*>>, 3> teams_;  // likewise
};

}  // namespace

SameRoster sameRoster(const ThreeContests& contests) {
  return RosterMatcher(contests).run();
}

}  // namespace scorvane
