// Everybody in the contest, as lists by number want them.
#pragma once

#include <string>
#include <vector>

#include "results/score_cards.h"

namespace scorvane {

/// A contestant with a name, and where that person belongs.
struct Person {
  CardRow card;
  const std::string* team = nullptr;  ///< "" without a team, as the coach
  const std::string* coach = nullptr;
};

/// In order of number. Whoever is in two teams, as in a damaged file, is a member of the first one.
[[nodiscard]] std::vector<Person> peopleByNumber(const Contest& contest, const ScoreCards& cards);

}  // namespace scorvane
