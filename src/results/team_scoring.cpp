#include "results/team_scoring.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace scorvane {

namespace {

// A team of more regular members than this exists in damaged files only; exchanging would take
// too long there.
constexpr std::size_t kMostToExchange = 64;

// A plain exchange sort, highest first. It decides which of several equal scores comes first, and
// so whose tie-breaking values count; another sort would decide otherwise. Slots without a score
// are exchanged like members with 0.
void exchangeByScore(std::span<const std::int32_t> scores, std::vector<std::size_t>& order) {
  const auto scoreOf = [&](std::size_t slot) { return slot < scores.size() ? scores[slot] : 0; };
  std::iota(order.begin(), order.end(), std::size_t{0});
  for (std::size_t i = 0; i < order.size(); ++i) {
    for (std::size_t j = i + 1; j < order.size(); ++j) {
      if (scoreOf(order[i]) < scoreOf(order[j])) std::swap(order[i], order[j]);
    }
  }
}

// Missing slots rank between the members with 0 and those below 0. They add nothing, so it is
// enough to know how many of the places that count they take.
void chooseOfHugeTeam(std::span<const std::int32_t> scores, std::size_t slots, std::size_t places,
                      std::vector<std::size_t>& counting) {
  counting.resize(scores.size());
  std::iota(counting.begin(), counting.end(), std::size_t{0});
  std::stable_sort(counting.begin(), counting.end(),
                   [&](std::size_t a, std::size_t b) { return scores[a] > scores[b]; });
  const std::size_t missing = slots - scores.size();
  const auto firstBelowZero = std::find_if(counting.begin(), counting.end(),
                                           [&](std::size_t slot) { return scores[slot] < 0; });
  const auto notBelowZero = static_cast<std::size_t>(firstBelowZero - counting.begin());
  std::size_t count = std::min(places, notBelowZero);
  const std::size_t left = places - count;
  if (left > missing) count += std::min(left - missing, counting.size() - count);
  counting.resize(count);
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
  const auto slots = static_cast<std::size_t>(settings.numPerTeam);
  const auto places = static_cast<std::size_t>(settings.numToScore);
  // Members of 0 and more are in order before the exchanges reach a missing slot.
  const bool anyBelowZero = std::any_of(scores.begin(), scores.end(), [](auto s) { return s < 0; });
  const std::size_t exchanged = anyBelowZero ? slots : scores.size();
  if (exchanged > kMostToExchange) {
    chooseOfHugeTeam(scores, slots, places, counting);
    return;
  }
  counting.resize(exchanged);
  exchangeByScore(scores, counting);
  counting.resize(std::min(places, exchanged));
  std::erase_if(counting, [&](std::size_t slot) { return slot >= scores.size(); });
}

}  // namespace scorvane
