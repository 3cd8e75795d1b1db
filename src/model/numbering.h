// Contestant numbers and rotation group letters.
#pragma once

#include <cstdint>
#include <vector>

#include "model/contest.h"

/// Group letter of a contestant number: 'A' + ((number - startNum) mod numGroups), the remainder
/// with the sign of the dividend, so a number below startNum can give a character below 'A'.
/// 'A' when numGroups is 0.
[[nodiscard]] char groupOfNumber(const ContestSettings& settings, ContestantNumber number);

/// The letters "A", "B", ... of numGroups groups; none when numGroups is below 1, and no more
/// than there are characters.
[[nodiscard]] std::vector<char> makeGroupLetters(std::int32_t numGroups);

/// Sets nextContestantNum and nextGroupLetter: startNum and "A" without contestants, otherwise one
/// more than the largest number present (numbers not above 0 do not count) and its group letter.
void updateNextContestant(Contest& contest);
