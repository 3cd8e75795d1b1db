#include "results/team_scoring.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace {

// A team of more regular members than this exists in damaged files only; exchanging would take
// too long there.
constexpr std::size_t kMostToExchange = 64;

// A plain exchange sort, highest first. It decides which of several equal scores comes first, and
// so whose tie-breaking values count; another sort would decide otherwise.
void orderByScore(std::span<const std::int32_t> scores, std::vector<std::size_t>& order) {
  order.resize(scores.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  if (order.size() > kMostToExchange) {
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t a, std::size_t b) { return scores[a] > scores[b]; });
    return;
  }
  for (std::size_t i = 0; i < order.size(); ++i) {
    for (std::size_t j = i + 1; j < order.size(); ++j) {
      if (scores[order[i]] < scores[order[j]]) std::swap(order[i], order[j]);
    }
  }
}

}  // namespace

std::size_t regularSlots(const ContestSettings& settings, const Team& team) {
  if (settings.numPerTeam <= 0) return 0;
  return std::min(team.members.size(), static_cast<std::size_t>(settings.numPerTeam));
}

void chooseCountingSlots(const ContestSettings& settings, std::span<const std::int32_t> scores,
                         std::vector<std::size_t>& counting) {
  counting.clear();
  if (settings.numToScore <= 0 || settings.numToScore > settings.numPerTeam) return;
  orderByScore(scores, counting);
  // Missing slots rank between the members with 0 and those below 0. They add nothing, so it is
  // enough to know how many of the places that count they take.
  const auto places = static_cast<std::size_t>(settings.numToScore);
  const std::size_t missing = static_cast<std::size_t>(settings.numPerTeam) - scores.size();
  const auto firstBelowZero = std::find_if(counting.begin(), counting.end(),
                                           [&](std::size_t slot) { return scores[slot] < 0; });
  const auto notBelowZero = static_cast<std::size_t>(firstBelowZero - counting.begin());
  std::size_t count = std::min(places, notBelowZero);
  const std::size_t left = places - count;
  if (left > missing) count += std::min(left - missing, counting.size() - count);
  counting.resize(count);
}
