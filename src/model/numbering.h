// Contestant numbers and rotation group letters.
#pragma once

#include <cstdint>
#include <vector>

#include "model/contest.h"

namespace scorvane {

/// Group letter of a contestant number: 'A' + ((number - startNum) mod numGroups), the remainder
/// with the sign of the dividend, so a number below startNum can have a character below 'A'.
/// 'A' when numGroups is 0.
[[nodiscard]] char groupOfNumber(const ContestSettings& settings, ContestantNumber number);

/// The stored group letter of a contestant; the one of the number when none is stored.
[[nodiscard]] char groupOfContestant(const Contest& contest, ContestantNumber number);

/// Setup allows 26 groups; a contest file may promise more, but letters end with the characters.
inline constexpr std::int32_t kMaxGroupLetters = 256 - 'A';

/// Letter of a group (from 0, below kMaxGroupLetters), and the group of a letter; below 0 for a
/// character before 'A'.
[[nodiscard]] constexpr char letterOfGroup(std::int32_t group) {
  return static_cast<char>('A' + group);
}
[[nodiscard]] constexpr std::int32_t groupOfLetter(char letter) {
  return static_cast<unsigned char>(letter) - 'A';
}

/// How many of numGroups groups have a letter: none when it is below 1, else at most
/// kMaxGroupLetters.
[[nodiscard]] std::int32_t letteredGroups(std::int32_t numGroups);

/// The letters "A", "B", ... of numGroups groups; none when numGroups is below 1, and no more
/// than there are characters.
[[nodiscard]] std::vector<char> makeGroupLetters(std::int32_t numGroups);

/// Sets nextContestantNum and nextGroupLetter: startNum and "A" without contestants, otherwise one
/// more than the largest number present (numbers not above 0 do not count) and its group letter.
/// Returns how many whole rounds of groups are between startNum and the next number; 0 when
/// numGroups is 0.
std::int32_t updateNextContestant(Contest& contest);

/// Makes the letters of numGroups groups and replaces every contestant's group letter by the one
/// that goes with the number.
void regroupContestants(Contest& contest);

}  // namespace scorvane
