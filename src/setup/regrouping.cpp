#include "setup/regrouping.h"

#include <cstdint>

#include "model/numbering.h"

void regroupContestants(Contest& contest) {
  contest.groupLetters = makeGroupLetters(contest.settings.numGroups);
  for (const auto& [number, name] : contest.contestantNames) {
    contest.contestantGroup[number] = groupOfNumber(contest.settings, number);
  }
}

void clearReasonsOrder(Contest& contest) {
  const auto rows =
      static_cast<std::int64_t>(contest.teams.size()) * contest.settings.totalNumPerTeam;
  contest.reasonsOrder.reset(rows, contest.settings.numReasonsGroups);
  contest.reasonsPlace.clear();
  for (const auto& [number, name] : contest.contestantNames) {
    contest.reasonsPlace[number] = ReasonsPlace{};
  }
}
