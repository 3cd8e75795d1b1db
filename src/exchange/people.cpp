#include "exchange/people.h"

#include <algorithm>

namespace scorvane {

std::vector<Person> peopleByNumber(const Contest& contest, const ScoreCards& cards) {
  static const std::string none;
  std::vector<Person> people;
  for (const auto& [name, team] : contest.teams) {
    for (const CardRow& card : cards.membersOf(team)) people.push_back({card, &name, &team.coach});
  }
  for (const CardRow& card : cards.withoutTeam()) people.push_back({card, &none, &none});
  std::stable_sort(people.begin(), people.end(),
                   [](const Person& a, const Person& b) { return a.card.number < b.card.number; });
  const auto isSame = [](const Person& a, const Person& b) {
    return a.card.number == b.card.number;
  };
  people.erase(std::unique(people.begin(), people.end(), isSame), people.end());
  return people;
}

}  // namespace scorvane
