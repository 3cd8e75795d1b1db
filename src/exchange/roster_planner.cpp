#include "exchange/roster_planner.h"

#include <algorithm>
#include <limits>

#include "exchange/roster_names.h"
#include "exchange/sheet.h"
#include "storage/contest_format.h"
#include "text/format.h"
#include "text/number.h"

namespace scorvane {

namespace {

/// How much of a team's name the award lists show.
constexpr std::size_t kShownTeamName = 21;

std::size_t digitsOf(std::int64_t number) {
  std::string digits;
  appendNumber(digits, number);
  return digits.size();
}

}  // namespace

RosterPlanner::RosterPlanner(const Contest& contest, RosterPlan& plan)
    : contest_(contest), plan_(plan) {
  firstNew_ = contest.settings.startNum;
  if (!contest.contestantNames.empty()) {
    firstNew_ = std::int64_t{std::max(contest.contestantNames.back().first, 0)} + 1;
  }
  next_ = firstNew_;
  const auto regular = static_cast<std::size_t>(std::max(contest.settings.numPerTeam, 0));
  regularSlots_ = std::min(regular, teamSlots(contest.settings));
  for (const auto& [name, team] : contest.teams) present_.try_emplace(keyOfName(name), &name);
}

void RosterPlanner::openSlots(OpenTeam& team, const Team* present) const {
  team.slots.resize(teamSlots(contest_.settings));
  constexpr std::size_t kUsualSlots = 8;
  team.known.reserve(std::min(team.slots.size(), kUsualSlots));
  team.planned.members.reserve(team.known.capacity());
  const std::size_t filled = present == nullptr ? 0 : present->members.size();
  for (std::size_t i = 0; i < std::min(filled, team.slots.size()); ++i) {
    Slot& slot = team.slots[i];
    slot.number = present->members[i];
    const std::string* name = contest_.contestantNames.find(slot.number);
    slot.hasNumber = name != nullptr || (slot.number > 0 && slot.number < firstNew_);
    const auto isSame = [&](const Slot& other) {
      return slot.hasNumber && other.number == slot.number;
    };
    slot.isFree =
        (name == nullptr || name->empty()) && std::none_of(team.slots.data(), &slot, isSame);
    if (name != nullptr && !name->empty()) {
      team.present.push_back(tidied(*name));
      team.known.push_back({hashOfName(team.present.back()), 0, static_cast<std::uint32_t>(i),
                            static_cast<std::uint32_t>(team.present.size() - 1), false});
    }
  }
}

// The contest's team by its very name, or else one that reads the same; for a new team what its
// spellings have in common, which is the name of none in the contest.
std::string RosterPlanner::nameOrKey(std::string_view team) const {
  std::string name(team);
  if (contest_.teams.contains(name)) return name;
  std::string key = keyOfName(team);
  const auto alike = present_.find(key);
  return alike == present_.end() ? key : *alike->second;
}

RosterPlanner::OpenTeam RosterPlanner::openTeam(const RosterRow& row,
                                                const std::string& nameOrKey) const {
  OpenTeam team;
  team.line = row.line;
  const auto present = contest_.teams.find(nameOrKey);
  team.planned.isNew = present == contest_.teams.end();
  team.planned.name = team.planned.isNew ? std::string(row.team) : present->first;
  if (!team.planned.isNew) team.planned.coach = present->second.coach;
  openSlots(team, team.planned.isNew ? nullptr : &present->second);
  std::int64_t next = next_;
  for (const Slot& slot : team.slots) {
    team.numberFields += 1 + digitsOf(slot.hasNumber ? slot.number : next++);
  }
  return team;
}

void RosterPlanner::add(const RosterRow& row) {
  std::optional<OpenTeam> fresh;
  std::string key;
  if (!last_ || row.team != lastName_) {
    key = nameOrKey(row.team);
    const auto known = opened_.find(key);
    lastName_ = row.team;
    last_.reset();
    if (known != opened_.end()) last_ = known->second;
  }
  if (!last_) fresh = openTeam(row, key);
  OpenTeam& team = fresh ? *fresh : teams_[*last_];
  if (auto problem = problemOfNames(row, team)) return refuse(row.line, std::move(*problem));
  if (auto problem = findPlaces(row, team)) return refuse(row.line, std::move(*problem));
  join(row, team);
  if (!fresh) return;
  last_ = teams_.size();
  opened_.emplace(std::move(key), teams_.size());
  teams_.push_back(std::move(*fresh));
}

std::optional<std::string> RosterPlanner::problemOfNames(const RosterRow& row,
                                                         const OpenTeam& team) const {
  // Behind the name are the places in the reasons order, which may be any numbers.
  constexpr std::size_t kLongestNumber = 11;
  constexpr std::size_t kMostName = kLineRoom - 3 * (kLongestNumber + 1);
  for (const auto& [name, isAlternate] : row.people) {
    if (name.size() <= kMostName) continue;
    return formatText("The name %s is too long.  Shorten it to %d characters.",
                      quotedName(name).c_str(), static_cast<int>(kMostName));
  }
  if (team.planned.isNew && next_ + static_cast<std::int64_t>(team.slots.size()) >
                                std::numeric_limits<ContestantNumber>::max()) {
    return "There are no contestant numbers left.  Let the contest's numbers start lower.";
  }
  const std::string_view coach =
      team.planned.coach.empty() ? row.coach : std::string_view(team.planned.coach);
  if (team.planned.name.size() + 1 + std::max<std::size_t>(coach.size(), 1) + team.numberFields <=
      kLineRoom) {
    return std::nullopt;
  }
  return "The names of the team " + quotedName(team.planned.name) +
         " and of its coach are too long together.  Shorten them.";
}

RosterPlanner::KnownMember* RosterPlanner::OpenTeam::find(std::uint32_t hash,
                                                          std::string_view name) {
  for (KnownMember& member : known) {
    if (member.hash != hash) continue;
    if (isSameName(member.isPlanned ? planned.members[member.name].name : present[member.name],
                   name)) {
      return &member;
    }
  }
  return nullptr;
}

std::optional<std::string> RosterPlanner::findPlaces(const RosterRow& row, OpenTeam& team) {
  places_.clear();
  // Whoever comes later in the row finds no slot before these.
  std::size_t regular = 0;
  std::size_t alternate = regularSlots_;
  const auto passTaken = [&](std::size_t& slot, std::size_t end) {
    while (slot < end && !isFree(team.slots[slot])) ++slot;
    return slot < end;
  };
  for (const RosterRow::Person& person : row.people) {
    const std::uint32_t hash = hashOfName(person.name);
    KnownMember* known = team.find(hash, person.name);
    std::size_t before = 0;
    while (before < places_.size() &&
           (places_[before].hash != hash || !isSameName(row.people[before].name, person.name))) {
      ++before;
    }
    const bool isInRow = before < places_.size();
    if (isInRow || (known != nullptr && known->line > 0)) {
      return formatText(
          "%s is in the team %s twice, also in line %d.  Take one out, or tell the two apart.",
          quotedName(person.name).c_str(), quotedName(team.planned.name).c_str(),
          isInRow ? row.line : known->line);
    }
    if (known != nullptr) {
      places_.push_back({known->slot, hash, known});
    } else if (!person.isAlternate && passTaken(regular, regularSlots_)) {
      places_.push_back({regular++, hash, nullptr});
    } else if (passTaken(alternate, team.slots.size())) {
      places_.push_back({alternate++, hash, nullptr});
    } else {
      return formatText(
          "The team %s has no %s left for %s.  Take somebody out, or raise the members of a team "
          "in Setup Contest.",
          quotedName(team.planned.name).c_str(), person.isAlternate ? "alternate's place" : "place",
          quotedName(person.name).c_str());
    }
  }
  return std::nullopt;
}

// All numberless slots get theirs together, as when a team is added.
void RosterPlanner::giveNumbers(OpenTeam& team) {
  for (Slot& slot : team.slots) {
    if (slot.hasNumber) continue;
    slot.number = static_cast<ContestantNumber>(next_++);
    slot.hasNumber = true;
  }
}

void RosterPlanner::join(const RosterRow& row, OpenTeam& team) {
  const bool needsNumbers =
      team.planned.isNew || std::any_of(places_.begin(), places_.end(), [&](const Place& place) {
        return !team.slots[place.slot].hasNumber;
      });
  if (needsNumbers) giveNumbers(team);
  takeCoach(row, team);
  for (const Place& place : places_) {
    if (place.present != nullptr) place.present->line = row.line;
  }
  for (std::size_t i = 0; i < row.people.size(); ++i) {
    const auto& [index, hash, present] = places_[i];
    Slot& slot = team.slots[index];
    const bool isNew = present == nullptr;
    ++(index < regularSlots_ ? plan_.contestants : plan_.alternates);
    if (isNew) {
      slot.isFree = false;
      if (slot.number < firstNew_) taken_.insert(slot.number);
      team.known.push_back({hash, row.line, static_cast<std::uint32_t>(index),
                            static_cast<std::uint32_t>(team.planned.members.size()), true});
      plan_.changesNothing = false;
    }
    team.planned.members.push_back(
        {isNew ? std::string(row.people[i].name) : contestantName(contest_, slot.number),
         slot.number, index, isNew});
  }
}

void RosterPlanner::takeCoach(const RosterRow& row, OpenTeam& team) {
  PlannedTeam& planned = team.planned;
  if (planned.isNew) plan_.changesNothing = false;
  if (row.coach.empty()) return;
  if (planned.coach.empty()) {
    planned.coach = row.coach;
    planned.isCoachNew = !planned.isNew;
    plan_.changesNothing = false;
  } else if (!isSameName(row.coach, planned.coach) && row.coach != team.otherCoach &&
             keyOfName(row.coach) != keyOfName(planned.coach)) {
    team.otherCoach = row.coach;
    remark(row.line, "The team " + quotedName(planned.name) + " has the coach " +
                         quotedName(planned.coach) + " already; " + quotedName(row.coach) +
                         " is left out.");
  }
}

void RosterPlanner::checkShownNames() {
  std::map<std::string_view, const std::string*> shown;
  const auto startOf = [](const std::string& name) {
    return std::string_view(name).substr(0, kShownTeamName);
  };
  for (const auto& [name, team] : contest_.teams) {
    if (name.size() >= kShownTeamName) shown.try_emplace(startOf(name), &name);
  }
  for (const OpenTeam& team : teams_) {
    const std::string& name = team.planned.name;
    if (name.size() < kShownTeamName) continue;
    const auto [other, isFirst] = shown.try_emplace(startOf(name), &name);
    if (isFirst || *other->second == name) continue;
    remark(team.line, "The teams " + quotedName(*other->second) + " and " + quotedName(name) +
                          " read the same in the award lists, which show 21 characters.");
  }
}

void RosterPlanner::finish() {
  checkShownNames();
  plan_.teams.reserve(teams_.size());
  for (OpenTeam& team : teams_) {
    team.planned.numbers.reserve(team.slots.size());
    for (const Slot& slot : team.slots) team.planned.numbers.push_back(slot.number);
    if (team.known.empty()) {
      remark(team.line, "The team " + quotedName(team.planned.name) + " has no members.");
    }
    plan_.teams.push_back(std::move(team.planned));
  }
  std::stable_sort(plan_.remarks.begin(), plan_.remarks.end(),
                   [](const SheetNote& a, const SheetNote& b) { return a.line < b.line; });
}

}  // namespace scorvane
