#include "model/placing.h"

#include <cstddef>
#include <utility>

namespace scorvane {

namespace {

using Order = std::array<std::int32_t, 4>;

constexpr std::array<Order, 24> kOrders = {{
    {1, 2, 3, 4}, {1, 2, 4, 3}, {1, 3, 2, 4}, {1, 3, 4, 2}, {1, 4, 2, 3}, {1, 4, 3, 2},
    {2, 1, 3, 4}, {2, 1, 4, 3}, {2, 3, 1, 4}, {2, 3, 4, 1}, {2, 4, 1, 3}, {2, 4, 3, 1},
    {3, 1, 2, 4}, {3, 1, 4, 2}, {3, 2, 1, 4}, {3, 2, 4, 1}, {3, 4, 1, 2}, {3, 4, 2, 1},
    {4, 1, 2, 3}, {4, 1, 3, 2}, {4, 2, 1, 3}, {4, 2, 3, 1}, {4, 3, 1, 2}, {4, 3, 2, 1},
}};

// Position (0 to 3) of each animal in an order, indexed by animal number - 1.
std::array<std::size_t, 4> positionsIn(const Order& order) {
  std::array<std::size_t, 4> positions{};
  for (std::size_t i = 0; i < order.size(); ++i) {
    positions[static_cast<std::size_t>(order[i] - 1)] = i;
  }
  return positions;
}

// Unsigned, because a contest file may hold any numbers as cuts and sums must not overflow.
std::uint32_t cutsBetween(const std::array<std::uint32_t, 3>& cuts, std::size_t from,
                          std::size_t to) {
  std::uint32_t sum = 0;
  for (std::size_t i = from; i < to; ++i) sum += cuts[i];
  return sum;
}

// Calls visit(first, second, points) for every pair that the contestant has the other way round
// than the officials, neighbours first. Both letters name orders.
template <typename Visit>
void visitReversedPairs(PlacingLetter contestantLetter, PlacingLetter officialLetter,
                        const Cuts& cuts, Visit visit) {
  const Order placing = orderOfLetter(contestantLetter);
  const auto official = positionsIn(orderOfLetter(officialLetter));
  const std::array<std::uint32_t, 3> cutList = {static_cast<std::uint32_t>(cuts.cut1),
                                                static_cast<std::uint32_t>(cuts.cut2),
                                                static_cast<std::uint32_t>(cuts.cut3)};
  for (std::size_t distance = 1; distance < placing.size(); ++distance) {
    for (std::size_t i = 0; i + distance < placing.size(); ++i) {
      const std::int32_t first = placing[i];
      const std::int32_t second = placing[i + distance];
      const std::size_t above = official[static_cast<std::size_t>(first - 1)];
      const std::size_t below = official[static_cast<std::size_t>(second - 1)];
      if (below < above) visit(first, second, cutsBetween(cutList, below, above));
    }
  }
}

}  // namespace

bool isOrderLetter(PlacingLetter letter) {
  return letter >= 'A' && letter <= 'X';
}

std::array<std::int32_t, 4> orderOfLetter(PlacingLetter letter) {
  if (!isOrderLetter(letter)) return {0, 0, 0, 0};
  return kOrders[static_cast<std::size_t>(letter - 'A')];
}

std::int32_t placingScore(PlacingLetter contestantLetter, PlacingLetter officialLetter,
                          const Cuts& cuts) {
  if (!isOrderLetter(contestantLetter) || !isOrderLetter(officialLetter)) return 0;
  std::uint32_t lost = 0;
  visitReversedPairs(contestantLetter, officialLetter, cuts,
                     [&](std::int32_t, std::int32_t, std::uint32_t points) { lost += points; });
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(kTopScore) - lost);
}

std::vector<LostPair> lostPairs(PlacingLetter contestantLetter, PlacingLetter officialLetter,
                                const Cuts& cuts) {
  std::vector<LostPair> pairs;
  if (!isOrderLetter(contestantLetter) || !isOrderLetter(officialLetter)) return pairs;
  visitReversedPairs(contestantLetter, officialLetter, cuts,
                     [&](std::int32_t first, std::int32_t second, std::uint32_t points) {
                       if (points != 0) {
                         pairs.push_back({first, second, static_cast<std::int32_t>(points)});
                       }
                     });
  return pairs;
}

bool validateCuts(std::uint32_t cut1, std::uint32_t cut2, std::uint32_t cut3) {
  const std::uint64_t total = std::uint64_t{cut1} + cut2 + cut3;
  if (total > 15) return false;
  if (total == 15 && cut2 > 5) return false;
  return !(total == 14 && cut2 > 8);
}

}  // namespace scorvane
