// Random contests, the same for the same seed.
#pragma once

#include <random>

#include "tests/support/contest_builder.h"

namespace scorvane {

/// Few different scores, so that ties go deep; some contestants without some or all records, some
/// without a name or a team, some teams without some of their slots.
inline Contest randomContest(std::mt19937& random) {
  const auto upTo = [&](int most) {
    return static_cast<int>(random() % (static_cast<unsigned>(most) + 1U));
  };
  ContestBuilder builder;
  const std::int32_t perTeam = 1 + upTo(4);
  builder.members(perTeam, perTeam + upTo(2), upTo(5)).categories({"Beef", "Swine"});
  const int classes = upTo(4);
  for (int k = 0; k < classes; ++k) {
    builder.addClass({.reasons = upTo(1) == 1, .questions = upTo(1) == 1, .category = upTo(2)});
  }
  for (int t = 0; t < 1 + upTo(12); ++t) {
    std::vector<std::string> members;
    for (int slot = 0; slot < builder.contest.settings.totalNumPerTeam; ++slot) {
      members.emplace_back(upTo(5) == 0 ? "" : "Ann");
    }
    const std::string name = "Team " + std::to_string(t);
    builder.team(name, "", members);
    if (upTo(5) == 0) builder.contest.teams[name].members.resize(1);
  }
  for (const auto& [number, name] : builder.contest.contestantNames) {
    for (int k = 0; k < classes; ++k) {
      if (upTo(9) == 0) continue;
      builder.contest.scores[number][k] = {'A', upTo(2) - 1, upTo(2), upTo(2)};
    }
  }
  return builder.contest;
}

}  // namespace scorvane
