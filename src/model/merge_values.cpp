#include "model/merge_values.h"

#include "model/team_index.h"
#include "text/format.h"

namespace scorvane {

const ClassScores* MergeState::scoresOf(Side side, std::size_t person) const {
  const auto number = roster.people[person][side];
  return number ? contests[side]->scores.find(*number) : nullptr;
}

const ScoreRecord& MergeState::record(Side side, const ClassScores* scores,
                                      std::size_t judgedClass) const {
  static const ScoreRecord blank;
  const auto index = classes.elements[judgedClass][side];
  const ScoreRecord* found = scores != nullptr && index ? scores->find(*index) : nullptr;
  return found == nullptr ? blank : *found;
}

bool MergeState::isScored(Side side, std::size_t person, std::size_t judgedClass) const {
  if (!roster.people[person][side] || !classes.elements[judgedClass][side]) return false;
  const ScoreRecord& now = record(side, scoresOf(side, person), judgedClass);
  const ScoreRecord& before = record(kBase, scoresOf(kBase, person), judgedClass);
  return now.letter != before.letter || now.reasonsScore != before.reasonsScore ||
         now.questionsScore != before.questionsScore;
}

bool MergeState::isChanged(Side side, std::size_t person) const {
  const std::string& name = nameOn(side, person);
  if (!name.empty() && name != nameOn(kBase, person)) return true;
  for (std::size_t k = 0; k < classes.elements.size(); ++k) {
    if (isScored(side, person, k)) return true;
  }
  return false;
}

const Team& MergeState::teamOn(Side side, std::size_t team) const {
  return contests[side]->teams.at(*roster.teams[team][side]);
}

std::vector<std::size_t> MergeState::membersOn(Side side, std::size_t team) const {
  std::vector<std::size_t> members;
  for (const ContestantNumber number : teamOn(side, team).members) {
    const std::size_t* person = roster.personOf[side].find(number);
    if (person != nullptr) members.push_back(*person);
  }
  return members;
}

const std::string& MergeState::nameOn(Side side, std::size_t person) const {
  static const std::string none;
  const auto number = roster.people[person][side];
  return number ? contestantName(*contests[side], *number) : none;
}

bool MergeState::hasTeam(Side side, ContestantNumber number) const {
  const auto& teams = contests[side]->teams;
  return std::any_of(teams.begin(), teams.end(),
                     [&](const auto& team) { return isMember(team.second, number); });
}

bool isSameContest(const Contest& ancestor, const Contest& other) {
  std::size_t classes = 0;
  for (const ClassMatch& match :
       matchNames(ancestor.classes.className, other.classes.className, false)) {
    if (match.here && match.there) ++classes;
  }
  if (2 * classes < ancestor.classes.className.size()) return false;
  const SameRoster roster = sameRoster({&ancestor, &other, &other});
  std::size_t named = 0, same = 0;
  for (const Three<ContestantNumber>& person : roster.people) {
    if (!person[kBase]) break;  // the ancestor's come first
    const std::string& name = contestantName(ancestor, *person[kBase]);
    if (name.empty()) continue;
    ++named;
    if (person[kOurs] && contestantName(other, *person[kOurs]) == name) ++same;
  }
  return 2 * same >= named;
}

std::vector<std::string> numberChangeLines(const std::vector<NumberChange>& numbers) {
  std::vector<std::string> lines;
  for (std::size_t first = 0, next = 0; first < numbers.size(); first = next) {
    const NumberChange& start = numbers[first];
    for (next = first + 1; next < numbers.size(); ++next) {
      const auto distance = static_cast<std::int64_t>(next - first);
      if (numbers[next].from != start.from + distance || numbers[next].to != start.to + distance) {
        break;
      }
    }
    const NumberChange& end = numbers[next - 1];
    lines.push_back(next - first == 1 ? formatText("%d is now %d", start.from, start.to)
                                      : formatText("%d to %d are now %d to %d", start.from,
                                                   end.from, start.to, end.to));
  }
  return lines;
}

}  // namespace scorvane
