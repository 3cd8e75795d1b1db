#include "results/score_statistics.h"

#include <algorithm>
#include <cstdlib>

namespace scorvane {

void ScoreStatistics::add(std::int32_t score) {
  ++contestants;
  sum += score;
  if (score >= 50) ++at50;
  if (score >= 45) ++from45;
  if (score >= 40) ++from40;
}

std::int64_t roundedToTwoDigits(std::int64_t sum, std::int64_t count) {
  if (count == 0) return 0;
  const std::int64_t firstDecimal = std::abs(sum % count) * 10 / count;
  const std::int64_t rounded = (firstDecimal >= 5 ? sum + count : sum) / count;
  return std::min<std::int64_t>(rounded, 99);
}

}  // namespace scorvane
