#include "model/numbering.h"

#include <algorithm>

namespace scorvane {

char groupOfNumber(const ContestSettings& settings, ContestantNumber number) {
  if (settings.numGroups == 0) return 'A';
  const std::int64_t distance = std::int64_t{number} - settings.startNum;
  // The remainder is cut to 8 bits: a contest file may name more groups than there are letters.
  return static_cast<char>('A' + distance % settings.numGroups);
}

char groupOfContestant(const Contest& contest, ContestantNumber number) {
  const char* group = contest.contestantGroup.find(number);
  return group != nullptr ? *group : groupOfNumber(contest.settings, number);
}

std::int32_t letteredGroups(std::int32_t numGroups) {
  return std::clamp(numGroups, 0, kMaxGroupLetters);
}

std::vector<char> makeGroupLetters(std::int32_t numGroups) {
  std::vector<char> letters;
  for (std::int32_t k = 0; k < letteredGroups(numGroups); ++k) letters.push_back(letterOfGroup(k));
  return letters;
}

std::int32_t updateNextContestant(Contest& contest) {
  ContestSettings& settings = contest.settings;
  if (contest.contestantNames.empty()) {
    settings.nextContestantNum = settings.startNum;
    settings.nextGroupLetter = 'A';
    return 0;
  }
  const ContestantNumber largest = std::max(contest.contestantNames.back().first, 0);
  settings.nextContestantNum =
      static_cast<ContestantNumber>(static_cast<std::uint32_t>(largest) + 1U);
  settings.nextGroupLetter = groupOfNumber(settings, settings.nextContestantNum);
  if (settings.numGroups == 0) return 0;
  const std::int64_t distance = std::int64_t{settings.nextContestantNum} - settings.startNum;
  return static_cast<std::int32_t>(distance / settings.numGroups);
}

void regroupContestants(Contest& contest) {
  contest.groupLetters = makeGroupLetters(contest.settings.numGroups);
  for (const auto& [number, name] : contest.contestantNames) {
    contest.contestantGroup[number] = groupOfNumber(contest.settings, number);
  }
}

}  // namespace scorvane
