#include "model/numbering.h"

#include <algorithm>

namespace {

// Setup allows 26 groups; a contest file may promise more, as far as characters go.
constexpr std::int32_t kLetters = 256 - 'A';

}  // namespace

char groupOfNumber(const ContestSettings& settings, ContestantNumber number) {
  if (settings.numGroups == 0) return 'A';
  const std::int64_t distance = std::int64_t{number} - settings.startNum;
  // The remainder is cut to 8 bits: a contest file may name more groups than there are letters.
  return static_cast<char>('A' + distance % settings.numGroups);
}

std::vector<char> makeGroupLetters(std::int32_t numGroups) {
  std::vector<char> letters;
  for (std::int32_t i = 0; i < std::min(numGroups, kLetters); ++i) {
    letters.push_back(static_cast<char>('A' + i));
  }
  return letters;
}

void updateNextContestant(Contest& contest) {
  ContestSettings& settings = contest.settings;
  if (contest.contestantNames.empty()) {
    settings.nextContestantNum = settings.startNum;
    settings.nextGroupLetter = 'A';
    return;
  }
  const ContestantNumber largest = std::max(contest.contestantNames.back().first, 0);
  settings.nextContestantNum =
      static_cast<ContestantNumber>(static_cast<std::uint32_t>(largest) + 1U);
  settings.nextGroupLetter = groupOfNumber(settings, settings.nextContestantNum);
}
