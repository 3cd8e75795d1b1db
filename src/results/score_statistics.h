// How well a column of scores was judged on the whole.
#pragma once

#include <cstdint>

namespace scorvane {

/// Sums over one score of everybody; only those who reach a mark are counted for it.
struct ScoreStatistics {
  std::int64_t contestants = 0;
  std::int64_t sum = 0;
  std::int64_t at50 = 0;
  std::int64_t from45 = 0;
  std::int64_t from40 = 0;

  void add(std::int32_t score);
};

/// sum / count for a place of two digits: 1 is added when the first decimal is 5 or more, the rest
/// is cut off, and 100 or more shows as 99. 0 when there is nobody.
[[nodiscard]] std::int64_t roundedToTwoDigits(std::int64_t sum, std::int64_t count);

}  // namespace scorvane
