#include "model/contest_findings.h"

#include <algorithm>
#include <map>
#include <utility>

namespace scorvane {

namespace {

// Every slot of every team, in the order of numbers and, for one number, of teams.
using Slots = std::vector<std::pair<ContestantNumber, const std::string*>>;

Finding findingOf(FindingKind kind, ContestantNumber number, std::int32_t classIndex,
                  std::int64_t count) {
  Finding finding;
  finding.kind = kind;
  finding.number = number;
  finding.classIndex = classIndex;
  finding.count = count;
  return finding;
}

Slots slotsByNumber(const Contest& contest) {
  Slots slots;
  for (const auto& [name, team] : contest.teams) {
    for (const ContestantNumber number : team.members) slots.emplace_back(number, &name);
  }
  std::stable_sort(slots.begin(), slots.end(),
                   [](const auto& a, const auto& b) { return a.first < b.first; });
  return slots;
}

void findSharedNumbers(const Contest& contest, const Slots& slots, std::vector<Finding>& found) {
  for (auto first = slots.begin(); first != slots.end();) {
    const auto last = std::find_if(
        first, slots.end(), [&first](const auto& slot) { return slot.first != first->first; });
    if (last - first > 1 && contest.contestantNames.contains(first->first)) {
      Finding shared = findingOf(FindingKind::numberInTwoTeams, first->first, 0, last - first);
      for (auto slot = first; slot != last; ++slot) shared.teams.push_back(*slot->second);
      found.push_back(std::move(shared));
    }
    first = last;
  }
}

bool isInTeam(const Slots& slots, ContestantNumber number) {
  const auto slot =
      std::lower_bound(slots.begin(), slots.end(), number,
                       [](const auto& entry, ContestantNumber key) { return entry.first < key; });
  return slot != slots.end() && slot->first == number;
}

void findScoresWithoutName(const Contest& contest, const Slots& slots,
                           std::vector<Finding>& found) {
  for (const auto& [number, records] : contest.scores) {
    if (!contestantName(contest, number).empty()) continue;
    if (!contest.contestantNames.contains(number) && !isInTeam(slots, number)) continue;
    std::int64_t count = 0;
    for (const auto& [k, record] : records) count += countEntered(record);
    if (count > 0) found.push_back(findingOf(FindingKind::scoresWithoutName, number, 0, count));
  }
}

void findRecordsWithoutClass(const Contest& contest, std::vector<Finding>& found) {
  std::map<std::int32_t, std::int64_t> counts;
  for (const auto& [number, records] : contest.scores) {
    if (!contest.contestantNames.contains(number)) continue;
    for (const auto& [k, record] : records) {
      const int entered = countEntered(record);
      if (entered > 0 && (k < 0 || k >= contest.classes.count())) counts[k] += entered;
    }
  }
  for (const auto& [k, count] : counts) {
    found.push_back(findingOf(FindingKind::recordWithoutClass, 0, k, count));
  }
}

}  // namespace

std::vector<Finding> contestFindings(const Contest& contest) {
  std::vector<Finding> found;
  const Slots slots = slotsByNumber(contest);
  findSharedNumbers(contest, slots, found);
  findScoresWithoutName(contest, slots, found);
  findRecordsWithoutClass(contest, found);
  return found;
}

}  // namespace scorvane
